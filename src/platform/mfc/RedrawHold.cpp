#include "src/platform/mfc/RedrawHold.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct Held {
    HWND control;
    HWND dialog;
    bool hidden;
};

std::vector<Held> g_held;

bool isHidden(HWND control) { return !(GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE); }

}  // namespace

void holdRedraw(HWND control) {
    const auto isControl = [control](const Held& held) { return held.control == control; };
    if (std::any_of(g_held.begin(), g_held.end(), isControl)) return;
    const HWND dialog = GetAncestor(control, GA_ROOT);
    const auto isTold = [dialog](const Held& held) { return held.dialog == dialog; };
    if (std::none_of(g_held.begin(), g_held.end(), isTold))
        PostMessageW(dialog, redrawReleaseMessage(), 0, 0);
    g_held.push_back({control, dialog, isHidden(control)});
    SendMessageW(control, WM_SETREDRAW, FALSE, 0);
}

void releaseRedraw() {
    for (const auto& [control, dialog, hidden] : std::exchange(g_held, {})) {
        if (!IsWindow(control)) continue;
        SendMessageW(control, WM_SETREDRAW, TRUE, 0);
        // The platform's default for the message shows a window.
        if (hidden) ShowWindow(control, SW_HIDE);
        InvalidateRect(control, nullptr, TRUE);
    }
}

UINT redrawReleaseMessage() {
    static const UINT message = RegisterWindowMessageW(L"WexDialogs.ReleaseRedraw");
    return message;
}

void showControl(HWND control, bool show) {
    releaseRedraw();
    ShowWindow(control, show ? SW_SHOW : SW_HIDE);
}
