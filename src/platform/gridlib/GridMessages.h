// Messages and timers of a grid's window to itself.
#pragma once

#include <windows.h>

// What follows from changes is done once for all since the last turn of the message loop: the scroll bars are
// set, the open editor goes to where its cell is, assistive programs hear of the current cell's value.
constexpr UINT WM_GRID_SETTLE = WM_USER + 1;

// From the grid's accessible object. Selects a cell as a person does: the row in the upper 32 bits, the
// column in the lower; the SELFLAGs that say how. 0 where that can't be.
constexpr UINT WM_GRID_SELECT = WM_USER + 2;
// The cell at a place of the client area, x and y: the row in the upper 32 bits, the column in the lower.
constexpr UINT WM_GRID_CELL_AT = WM_USER + 3;

// Scrolls while a drag is held outside of the window.
constexpr UINT_PTR TIMER_DRAG = 1;
constexpr UINT DRAG_MILLISECONDS = 50;
