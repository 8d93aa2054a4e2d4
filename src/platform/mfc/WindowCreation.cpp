#include "src/platform/mfc/WindowCreation.h"

#include <utility>

#include "src/platform/mfc/CWnd.h"

CWnd* WindowCreation::s_wrapper = nullptr;
HHOOK WindowCreation::s_hook = nullptr;

WindowCreation::WindowCreation(CWnd& wrapper) {
    s_wrapper = &wrapper;
    s_hook = SetWindowsHookExW(WH_CBT, &hook, nullptr, GetCurrentThreadId());
}

WindowCreation::~WindowCreation() { unhook(); }

void WindowCreation::unhook() {
    if (s_hook) UnhookWindowsHookEx(std::exchange(s_hook, nullptr));
}

LRESULT CALLBACK WindowCreation::hook(int code, WPARAM w, LPARAM l) noexcept {
    const HWND window = reinterpret_cast<HWND>(w);
    wchar_t name[8];
    // The platform may make its input method window on the way to ours.
    const bool ours = code == HCBT_CREATEWND && GetClassNameW(window, name, 8) &&
                      CompareStringOrdinal(name, -1, L"IME", -1, TRUE) != CSTR_EQUAL;
    const LRESULT result = CallNextHookEx(s_hook, code, w, l);
    if (ours) {
        s_wrapper->SubclassWindow(window);
        // What the window creates within isn't ours, and each would pay for the hook.
        unhook();
    }
    return result;
}
