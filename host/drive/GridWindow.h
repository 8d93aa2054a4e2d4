// A grid, asked by the questions that its window answers.
#pragma once

#include <windows.h>

#include <optional>

#include "host/drive/Mouse.h"
#include "src/platform/base/GridQuery.h"

class GridWindow {
  public:
    explicit GridWindow(HWND window) : m_window(window) {}

    GridTableLook table() const;
    // Nothing where the table has no such cell.
    std::optional<GridCellLook> cell(GridPlace place) const;
    // Makes its current cell and its areas those of the grid. Lisp isn't told.
    void select(GridTableLook wanted) const;
    // What a press at that point of its client area means; nothing where no cell lies there.
    std::optional<GridHit> hit(POINT at) const;
    // The middle of what is in view of the cell; nothing where none of it is.
    std::optional<Spot> spotOf(GridPlace place) const;
    // The same after it was scrolled into view.
    std::optional<Spot> bringIntoView(GridPlace place) const;

  private:
    template <class Record>
    bool ask(GridQuestion question, Record& record) const;

    HWND m_window;
};

// Nothing for a control that is no grid.
std::optional<GridWindow> gridOf(HWND control);
