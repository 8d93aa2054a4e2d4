#include "host/drive/IdleWatch.h"

#include <commctrl.h>

#include "host/drive/MessageBoxes.h"

IdleWatch::IdleWatch(DialogObserver& observer) {
    s_observer = &observer;
    m_activations = SetWindowsHookExW(WH_CBT, &activationHook, nullptr, GetCurrentThreadId());
}

IdleWatch::~IdleWatch() {
    UnhookWindowsHookEx(m_activations);
    s_observer = nullptr;
}

void IdleWatch::loopIsEmpty(HWND dialog) {
    if (!s_observer) return;
    SetWindowSubclass(dialog, &dialogProc, 0, 0);
    s_observer->dialogIdle(dialog);
}

LRESULT CALLBACK IdleWatch::dialogProc(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                       DWORD_PTR) noexcept {
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &dialogProc, 0);
        if (s_observer) s_observer->windowGone(window);
    }
    return DefSubclassProc(window, message, w, l);
}

// A message box tells nobody that it is idle, so it is met when it is activated.
LRESULT CALLBACK IdleWatch::activationHook(int code, WPARAM w, LPARAM l) noexcept {
    const auto window = reinterpret_cast<HWND>(w);
    if (code == HCBT_ACTIVATE && isMessageBox(window)) s_observer->messageBoxShown(window);
    return CallNextHookEx(nullptr, code, w, l);
}
