// Bulk work on a visible control shows at once and not row by row: redraw is held until the next turn of a
// message loop.
#pragma once

#include <windows.h>

// The control draws nothing until releaseRedraw. Asking twice is one hold.
void holdRedraw(HWND control);
// All held controls draw themselves anew. The library's own loop calls it at each turn; whoever is about to
// run another loop, such as a message box, or to scroll a control calls it before.
void releaseRedraw();

// Shows or hides a control whose redraw may be held: to release it later would undo that.
void showControl(HWND control, bool show);
