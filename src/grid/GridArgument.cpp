#include "src/grid/GridArgument.h"

#include "src/dialog/CurrentTile.h"
#include "src/shell/Module.h"

WexGrid* gridOf(CWnd* control) {
    return isOfClass(control, GRID_WINDOW_CLASS, TEXT_NOT_A_GRID) ? WexGrid::of(control) : nullptr;
}

WexGrid* gridArgument(LispCall& call) { return gridOf(controlOf(call.tile())); }
