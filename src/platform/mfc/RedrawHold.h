// Bulk work on a visible control shows at once and not row by row: redraw is held until the next turn of a
// message loop, whichever loop that is: the library's own, that of a message box or a menu, or the host's.
#pragma once

#include <windows.h>

// The control draws nothing until releaseRedraw. Asking twice is one hold.
void holdRedraw(HWND control);
// All held controls draw themselves anew. Loops call it by themselves; whoever is about to scroll a control
// calls it before.
void releaseRedraw();

// A dialog calls releaseRedraw when this message comes. It is posted to the dialog of a control whose hold
// begins, so any loop of the thread delivers it, before input and painting.
UINT redrawReleaseMessage();

// Shows or hides a control whose redraw may be held: to release it later would undo that.
void showControl(HWND control, bool show);
