// The entries of a list-like control: list box, combo box, list view, tab control, tree view.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/drive/Mouse.h"
#include "host/lisp/Value.h"

class Items {
  public:
    virtual ~Items() = default;

    virtual int count() const = 0;
    // The text of an entry, counted from 0; the columns of a row joined by tabs.
    virtual std::wstring text(int index) const = 0;
    // What Lisp calls the entry: its index, or its handle in a tree.
    virtual lisp::Value name(int index) const { return lisp::Value::integer(index); }
    // The indexes of the selected entries, in order.
    virtual std::vector<int> selected() const = 0;
    // Scrolls the entry into view, and opens what hides it. Where to click it, in that column of a row.
    virtual Spot show(int index, int column) const = 0;

    // The entry that Lisp means: by its name, or by its text, the first one of that text. -1 for none.
    int find(lisp::Value item) const;
};

// Null for a control that is no list.
std::unique_ptr<Items> itemsOf(HWND control);

struct ColumnHead {
    std::wstring title;
    int width;      // device pixels
    int direction;  // 1 where its arrow points up, -1 down, 0 without an arrow
};

// The columns of a list view from left to right, none for another control.
std::vector<ColumnHead> columnHeads(HWND control);

// Where to click the head of a column of a list view, nothing for another control or column.
std::optional<Spot> headerSpot(HWND control, int column);
