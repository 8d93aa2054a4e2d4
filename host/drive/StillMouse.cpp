#include "host/drive/StillMouse.h"

#include "host/drive/RealInput.h"

namespace {

// It hears of the real mouse only, not of posted messages.
LRESULT CALLBACK mouseHook(int code, WPARAM message, LPARAM l) noexcept {
    const bool isIdle = !usesRealInput() && GetAsyncKeyState(VK_LBUTTON) >= 0;
    if (code >= 0 && message == WM_MOUSEMOVE && isIdle) return 1;
    return CallNextHookEx(nullptr, code, message, l);
}

}  // namespace

StillMouse::StillMouse() : m_hook(SetWindowsHookExW(WH_MOUSE, &mouseHook, nullptr, GetCurrentThreadId())) {}

StillMouse::~StillMouse() { UnhookWindowsHookEx(m_hook); }
