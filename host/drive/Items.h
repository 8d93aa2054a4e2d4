// The entries of a list-like control: list box, combo box, list view, tab control, tree view.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/drive/Mouse.h"
#include "host/lisp/Value.h"

// How the branches of a tree stand, each by its place among the entries.
class TreeLook {
  public:
    // The texts from the root to the item.
    virtual std::vector<std::wstring> path(int index) const = 0;
    // The place of the item whose branch it stands in; -1 for one of the root.
    virtual int parent(int index) const = 0;
    virtual bool isOpen(int index) const = 0;
    // The number of the image that is drawn: that of a selected item is another. -1 for none.
    virtual int image(int index) const = 0;
    virtual bool isChecked(int index) const = 0;
    // The place of the first item in view; -1 in an empty tree.
    virtual int first() const = 0;

  protected:
    ~TreeLook() = default;
};

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
    // What a person reads where it stands, nothing for an entry that is hidden in a closed branch.
    virtual std::optional<std::wstring> line(int index) const { return text(index); }
    // Scrolls the entry into view, and opens what hides it.
    virtual void bringIntoView(int index, int column) const = 0;
    // Where to click the entry as it stands, in that column of a row.
    virtual Spot at(int index, int column) const = 0;
    // Where to click its check box, or the button that opens and closes it; nothing where it has none in
    // view.
    virtual std::optional<Spot> checkBoxOf(int) const { return std::nullopt; }
    virtual std::optional<Spot> buttonOf(int) const { return std::nullopt; }
    // What a tree shows beside its texts; null for another control.
    virtual const TreeLook* tree() const { return nullptr; }

    // Both at once.
    Spot show(int index, int column) const;
    // The entry that Lisp means: by its name, or by its text, the first one of that text; in a tree by a list
    // that leads from the root to it, too, of texts, or of numbers among the siblings, from 0. -1 for none.
    int find(lisp::Value item) const;
    // The entry at a point of the control's client area; -1 for none.
    virtual int hit(POINT at) const = 0;

  private:
    int findPath(lisp::Value steps) const;
    int findChild(int parent, lisp::Value step) const;
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
