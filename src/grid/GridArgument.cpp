#include "src/grid/GridArgument.h"

#include "src/dialog/CurrentTile.h"
#include "src/shell/Module.h"

WexGrid* gridOf(CWnd* control) {
    WexGrid* grid = WexGrid::of(control);
    if (!grid) isOfClass(control, GRID_WINDOW_CLASS, TEXT_NOT_A_GRID);
    return grid;
}

WexGrid* gridArgument(LispCall& call) { return gridOf(controlOf(call.tile())); }

void warnNoColumns() { warn(WARN_NOT_NOW, L"the grid has no columns: wex_grid_setrowcolumns makes them"); }

void warnOutsideGrid(const WexGrid& grid, int row, int column) {
    warn(WARN_OUTSIDE, [&] {
        const bool isRow = static_cast<uint32_t>(row) > grid.GetRowCount();
        const uint32_t last = isRow ? grid.GetRowCount() : grid.GetColCount();
        return (isRow ? L"row " : L"column ") + std::to_wstring(isRow ? row : column) +
               L" is outside the grid, whose last one is " + std::to_wstring(last);
    });
}
