#include "host/drive/RealInput.h"

#include <cstdlib>

#include "host/drive/MessageBoxes.h"

namespace {

bool g_isReal = false;
DWORD g_lastButton = 0;  // the one that moveMouse moved last

// In pixels: how far two clicks have to be from each other.
constexpr LONG BESIDE = 6;

void send(INPUT input) { SendInput(1, &input, sizeof input); }

// As SendInput counts: 65536 across the screen. Rounded up, so that the system comes back to the pixel.
LONG ofScreen(LONG pixel, int size) { return (pixel * 65536 + size - 1) / size; }

}  // namespace

bool usesRealInput() { return g_isReal; }

void useRealInput(bool real) { g_isReal = real; }

void moveMouse(const Spot& spot, DWORD flags) {
    const HWND dialog = GetAncestor(spot.window, GA_ROOT);
    if (isSystemDialog(dialog) && IsWindowEnabled(dialog)) SetForegroundWindow(dialog);
    POINT at = spot.point;
    ClientToScreen(spot.window, &at);
    INPUT input{};
    input.type = INPUT_MOUSE;
    if (flags) g_lastButton = flags;
    input.mi.dx = ofScreen(at.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = ofScreen(at.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    send(input);
}

void repeatLostRelease() {
    const bool isDown = GetAsyncKeyState(VK_LBUTTON) < 0 || GetAsyncKeyState(VK_RBUTTON) < 0;
    if (!g_isReal || isDown || g_lastButton != MOUSEEVENTF_RIGHTUP || !GetCapture()) return;
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_RIGHTUP;
    send(input);
}

Spot besideLastClick(const Spot& spot) {
    static Spot last{};
    Spot beside = spot;
    const bool isNear = spot.window == last.window && std::abs(spot.point.x - last.point.x) < BESIDE &&
                        std::abs(spot.point.y - last.point.y) < BESIDE;
    if (isNear) beside.point.x = last.point.x + (last.point.x > spot.point.x ? -BESIDE : BESIDE);
    return last = isInView(beside) ? beside : spot;
}

void sendKey(int virtualKey, bool down) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtualKey);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    send(input);
}

// By the keys of the keyboard as far as it has them.
void sendCharacter(wchar_t c) {
    const SHORT key = VkKeyScanW(c);
    const bool isPlain = key != -1 && (HIBYTE(key) & ~1) == 0;
    if (isPlain) {
        if (HIBYTE(key)) sendKey(VK_SHIFT, true);
        sendKey(LOBYTE(key), true);
        sendKey(LOBYTE(key), false);
        if (HIBYTE(key)) sendKey(VK_SHIFT, false);
        return;
    }
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = c;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    send(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    send(input);
}
