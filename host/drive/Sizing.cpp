#include "host/drive/Sizing.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "src/platform/base/Text.h"

namespace {

constexpr std::wstring_view GRIP = L"grip";

constexpr Border BORDERS[] = {
    {L"left", 0, 1}, {L"top", 1, 0}, {L"right", 2, 1}, {L"bottom", 1, 2}, {GRIP, 2, 2},
};

// In pixels: how far from the edge a border and the grip are taken hold of.
constexpr int WITHIN_BORDER = 1, WITHIN_GRIP = 4;

// In pixels of the screen.
POINT holdOf(HWND dialog, const Border& border) {
    RECT rect;
    if (border.name == GRIP) {
        GetClientRect(dialog, &rect);
        MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        return {rect.right - WITHIN_GRIP, rect.bottom - WITHIN_GRIP};
    }
    GetWindowRect(dialog, &rect);
    InflateRect(&rect, -WITHIN_BORDER, -WITHIN_BORDER);
    return {rect.left + (rect.right - rect.left) * border.right / 2,
            rect.top + (rect.bottom - rect.top) * border.down / 2};
}

// The window's rectangle with the edges moved that this answer to WM_NCHITTEST stands for.
RECT moved(RECT rect, LRESULT part, SIZE by) {
    const auto isAmong = [part](std::initializer_list<LRESULT> parts) {
        return std::find(parts.begin(), parts.end(), part) != parts.end();
    };
    if (isAmong({HTLEFT, HTTOPLEFT, HTBOTTOMLEFT})) rect.left += by.cx;
    if (isAmong({HTRIGHT, HTTOPRIGHT, HTBOTTOMRIGHT})) rect.right += by.cx;
    if (isAmong({HTTOP, HTTOPLEFT, HTTOPRIGHT})) rect.top += by.cy;
    if (isAmong({HTBOTTOM, HTBOTTOMLEFT, HTBOTTOMRIGHT})) rect.bottom += by.cy;
    return rect;
}

// Whether the mouse reaches the window and the system would size it.
bool canBeSized(HWND dialog) {
    return IsWindowVisible(dialog) && IsWindowEnabled(dialog) && !IsZoomed(dialog) && !IsIconic(dialog);
}

}  // namespace

const Border* borderNamed(std::wstring_view name) {
    const auto found = std::find_if(std::begin(BORDERS), std::end(BORDERS), [&](const Border& border) {
        return equalIgnoringCase(border.name, name);
    });
    return found == std::end(BORDERS) ? nullptr : found;
}

// In place of the system's own loop, which follows the one pointer that all programs share: what it asks and
// tells for a drag of a single step.
bool dragBorder(HWND dialog, const Border& border, SIZE by) {
    if (!canBeSized(dialog)) return false;
    const POINT hold = holdOf(dialog, border);
    const LRESULT part = SendMessageW(dialog, WM_NCHITTEST, 0, MAKELPARAM(hold.x, hold.y));
    if (part < HTSIZEFIRST || part > HTSIZELAST) return false;
    RECT rect;
    GetWindowRect(dialog, &rect);
    rect = moved(rect, part, by);
    SendMessageW(dialog, WM_ENTERSIZEMOVE, 0, 0);
    SendMessageW(dialog, WM_SIZING, part - HTSIZEFIRST + WMSZ_LEFT, reinterpret_cast<LPARAM>(&rect));
    SetWindowPos(dialog, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(dialog, WM_EXITSIZEMOVE, 0, 0);
    return true;
}
