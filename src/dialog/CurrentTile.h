// The control that a Lisp function works on: a tile of the current dialog.
#pragma once

#include "src/platform/mfc/CWnd.h"
#include "src/shell/LispCall.h"

// In all of these the author is told what is missing.

class WexDialog;

// The current dialog; null without one.
WexDialog* dialogToWork();
// The current dialog, which has a window; null without one.
WexDialog* runningDialog();

// Null without a dialog, a window or such a control.
CWnd* controlOf(const TileAddress& tile);

// The control is of another kind than the function needs, as "edit boxes".
void warnOtherKind(const CWnd& control, const wchar_t* needed);

// The wrapper of that class; null also where the control has another one. `needed` are its controls, as "edit
// boxes".
template <class Wrapper>
Wrapper* controlAs(const TileAddress& tile, const wchar_t* needed) {
    CWnd* control = controlOf(tile);
    auto* wrapper = dynamic_cast<Wrapper*>(control);
    if (control && !wrapper) [[unlikely]]
        warnOtherKind(*control, needed);
    return wrapper;
}

// Whether there is a control, and its window is of that class, wrapped or bare. A control of another class
// gets the alert.
bool isOfClass(const CWnd* control, const wchar_t* className, TextId alert);
