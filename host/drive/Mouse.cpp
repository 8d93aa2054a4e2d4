#include "host/drive/Mouse.h"

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

void hold(const Spot& spot) { post(spot, WM_LBUTTONDOWN, MK_LBUTTON); }

void letGo(const Spot& spot) { post(spot, WM_LBUTTONUP, 0); }

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
