// The tile argument of the grid functions.
#pragma once

#include "src/grid/WexGrid.h"
#include "src/shell/LispCall.h"

// The grid of that tile. Null without one; a control of another class gets the alert, and a grid that the
// dialog didn't look at is null too.
WexGrid* gridOf(CWnd* control);
WexGrid* gridArgument(LispCall& call);

// Tells the author that the grid has no columns but the headers of its rows.
void warnNoColumns();
// Tells the author of a row or a column that the grid hasn't got.
void warnOutsideGrid(const WexGrid& grid, int row, int column);
inline void warnUnlessInGrid(const WexGrid& grid, int row, int column) {
    if (static_cast<uint32_t>(row) > grid.GetRowCount() || static_cast<uint32_t>(column) > grid.GetColCount())
        [[unlikely]]
        warnOutsideGrid(grid, row, column);
}
