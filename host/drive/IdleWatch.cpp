#include "host/drive/IdleWatch.h"

#include "host/drive/MessageBoxes.h"

IdleWatch::IdleWatch(DialogObserver& observer) {
    s_observer = &observer;
    const DWORD thread = GetCurrentThreadId();
    m_messages = SetWindowsHookExW(WH_CALLWNDPROC, &messageHook, nullptr, thread);
    m_activations = SetWindowsHookExW(WH_CBT, &activationHook, nullptr, thread);
}

IdleWatch::~IdleWatch() {
    UnhookWindowsHookEx(m_activations);
    UnhookWindowsHookEx(m_messages);
    s_observer = nullptr;
}

LRESULT CALLBACK IdleWatch::messageHook(int code, WPARAM w, LPARAM l) noexcept {
    if (code == HC_ACTION) {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(l);
        if (sent.message == WM_ENTERIDLE && sent.wParam == MSGF_DIALOGBOX) {
            s_observer->dialogIdle(reinterpret_cast<HWND>(sent.lParam));
        } else if (sent.message == WM_NCDESTROY) {
            s_observer->windowGone(sent.hwnd);
        }
    }
    return CallNextHookEx(nullptr, code, w, l);
}

// A box without an owner tells nobody that it is idle, so it is met when it is activated.
LRESULT CALLBACK IdleWatch::activationHook(int code, WPARAM w, LPARAM l) noexcept {
    const auto window = reinterpret_cast<HWND>(w);
    if (code == HCBT_ACTIVATE && isMessageBox(window)) s_observer->messageBoxShown(window);
    return CallNextHookEx(nullptr, code, w, l);
}
