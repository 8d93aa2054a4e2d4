#include "src/grid/GridArgument.h"

#include "src/dialog/CurrentTile.h"
#include "src/shell/Module.h"

WexGrid* gridOf(CWnd* control) {
    WexGrid* grid = WexGrid::of(control);
    if (!grid) isOfClass(control, GRID_WINDOW_CLASS, TEXT_NOT_A_GRID);
    return grid;
}

WexGrid* gridArgument(LispCall& call) { return gridOf(controlOf(call.tile())); }
