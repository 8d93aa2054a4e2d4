#include "host/drive/Mouse.h"

#include <algorithm>
#include <initializer_list>

namespace {

void post(const Spot& spot, UINT message, WPARAM buttons) {
    PostMessageW(spot.window, message, buttons, MAKELPARAM(spot.point.x, spot.point.y));
}

}  // namespace

Spot middleOf(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return {window, {client.right / 2, client.bottom / 2}};
}

// Down and up are posted together: list and tree views run a loop of their own on the first until they see
// the second.
void click(const Spot& spot) {
    post(spot, WM_LBUTTONDOWN, MK_LBUTTON);
    post(spot, WM_LBUTTONUP, 0);
}

void controlClick(const Spot& spot) {
    post(spot, WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL);
    post(spot, WM_LBUTTONUP, MK_CONTROL);
}

void doubleClick(const Spot& spot) {
    click(spot);
    post(spot, WM_LBUTTONDBLCLK, MK_LBUTTON);
    post(spot, WM_LBUTTONUP, 0);
}

void rightClick(const Spot& spot) {
    post(spot, WM_RBUTTONDOWN, MK_RBUTTON);
    post(spot, WM_RBUTTONUP, 0);
}

// In place of the system's own loop, which follows the one pointer that all programs share: what it asks and
// tells for a drag of a single step.
bool dragBorder(HWND window, POINT from, SIZE by) {
    const LRESULT part = SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(from.x, from.y));
    if (part < HTSIZEFIRST || part > HTSIZELAST) return false;
    const auto isAmong = [part](std::initializer_list<LRESULT> parts) {
        return std::find(parts.begin(), parts.end(), part) != parts.end();
    };
    RECT rect;
    GetWindowRect(window, &rect);
    if (isAmong({HTLEFT, HTTOPLEFT, HTBOTTOMLEFT})) rect.left += by.cx;
    if (isAmong({HTRIGHT, HTTOPRIGHT, HTBOTTOMRIGHT})) rect.right += by.cx;
    if (isAmong({HTTOP, HTTOPLEFT, HTTOPRIGHT})) rect.top += by.cy;
    if (isAmong({HTBOTTOM, HTBOTTOMLEFT, HTBOTTOMRIGHT})) rect.bottom += by.cy;
    SendMessageW(window, WM_ENTERSIZEMOVE, 0, 0);
    SendMessageW(window, WM_SIZING, part - HTSIZEFIRST + WMSZ_LEFT, reinterpret_cast<LPARAM>(&rect));
    SetWindowPos(window, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
    return true;
}
