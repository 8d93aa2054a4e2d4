// The control that a Lisp function works on: a tile of the current dialog.
#pragma once

#include "src/platform/mfc/CWnd.h"
#include "src/shell/LispCall.h"

// Null without a dialog, a window or such a control.
CWnd* controlOf(const TileAddress& tile);

// The wrapper of that class; null also where the control has another one.
template <class Wrapper>
Wrapper* controlAs(const TileAddress& tile) {
    return dynamic_cast<Wrapper*>(controlOf(tile));
}

// Whether there is a control, and its window is of that class, wrapped or bare. A control of another class
// gets the alert.
bool isOfClass(const CWnd* control, const wchar_t* className, TextId alert);
