#include "src/platform/mfc/RedrawHold.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

std::vector<HWND> g_held;

}  // namespace

void holdRedraw(HWND control) {
    if (std::find(g_held.begin(), g_held.end(), control) != g_held.end()) return;
    SendMessageW(control, WM_SETREDRAW, FALSE, 0);
    g_held.push_back(control);
}

void releaseRedraw() {
    for (const HWND control : std::exchange(g_held, {})) {
        if (!IsWindow(control)) continue;
        SendMessageW(control, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(control, nullptr, TRUE);
    }
}
