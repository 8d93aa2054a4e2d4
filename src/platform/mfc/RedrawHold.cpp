#include "src/platform/mfc/RedrawHold.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct Held {
    HWND control;
    bool hidden;
};

std::vector<Held> g_held;

bool isHidden(HWND control) { return !(GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE); }

}  // namespace

void holdRedraw(HWND control) {
    const auto isControl = [control](const Held& held) { return held.control == control; };
    if (std::any_of(g_held.begin(), g_held.end(), isControl)) return;
    g_held.push_back({control, isHidden(control)});
    SendMessageW(control, WM_SETREDRAW, FALSE, 0);
}

void releaseRedraw() {
    for (const auto& [control, hidden] : std::exchange(g_held, {})) {
        if (!IsWindow(control)) continue;
        SendMessageW(control, WM_SETREDRAW, TRUE, 0);
        // The platform's default for the message shows a window.
        if (hidden) ShowWindow(control, SW_HIDE);
        InvalidateRect(control, nullptr, TRUE);
    }
}

void showControl(HWND control, bool show) {
    releaseRedraw();
    ShowWindow(control, show ? SW_SHOW : SW_HIDE);
}
