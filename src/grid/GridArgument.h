// The tile argument of the grid functions.
#pragma once

#include "src/grid/WexGrid.h"
#include "src/shell/LispCall.h"

// The grid of that tile. Null without one; a control of another class gets the alert, and a grid that the
// dialog didn't look at is null too.
WexGrid* gridOf(CWnd* control);
WexGrid* gridArgument(LispCall& call);
