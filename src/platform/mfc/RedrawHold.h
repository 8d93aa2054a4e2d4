// Bulk work on a visible control shows at once and not row by row: redraw is held until the next turn of a
// message loop.
#pragma once

#include <windows.h>

// The control draws nothing until releaseRedraw. Asking twice is one hold.
void holdRedraw(HWND control);
// All held controls draw themselves anew. The library's own loop calls it at each turn; whoever is about to
// run another loop, such as a message box, to show or hide a control, or to scroll one, calls it before.
void releaseRedraw();
