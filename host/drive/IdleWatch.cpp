#include "host/drive/IdleWatch.h"

#include "host/drive/MessageBoxes.h"

IdleWatch::IdleWatch(DialogObserver& observer) {
    s_observer = &observer;
    m_hook = SetWindowsHookExW(WH_CBT, &windowHook, nullptr, GetCurrentThreadId());
}

IdleWatch::~IdleWatch() {
    UnhookWindowsHookEx(m_hook);
    s_observer = nullptr;
}

void IdleWatch::loopIsEmpty(HWND dialog) {
    if (s_observer) s_observer->dialogIdle(dialog);
}

// A message box tells nobody that it is idle, so it is met when it is activated.
LRESULT CALLBACK IdleWatch::windowHook(int code, WPARAM w, LPARAM l) noexcept {
    const auto window = reinterpret_cast<HWND>(w);
    if (code == HCBT_ACTIVATE && isMessageBox(window)) s_observer->messageBoxShown(window);
    if (code == HCBT_DESTROYWND) s_observer->windowGone(window);
    return CallNextHookEx(nullptr, code, w, l);
}
