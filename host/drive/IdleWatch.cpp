#include "host/drive/IdleWatch.h"

#include <utility>

#include "host/drive/MessageBoxes.h"

IdleWatch::IdleWatch(DialogObserver& observer) : m_observer(&observer) {
    s_observers.push_back(m_observer);
    if (!s_hook) s_hook = SetWindowsHookExW(WH_CBT, &windowHook, nullptr, GetCurrentThreadId());
}

IdleWatch::~IdleWatch() {
    std::erase(s_observers, m_observer);
    if (s_observers.empty()) UnhookWindowsHookEx(std::exchange(s_hook, nullptr));
}

// What an observer does may end or begin a watch.
template <class Tell>
void IdleWatch::tellAll(Tell tell) {
    const std::vector<DialogObserver*> observers = s_observers;
    for (DialogObserver* observer : observers) tell(*observer);
}

void IdleWatch::loopIsEmpty(HWND dialog) {
    tellAll([=](DialogObserver& observer) { observer.dialogIdle(dialog); });
}

// A message box tells nobody that it is idle, so it is met when it is activated.
LRESULT CALLBACK IdleWatch::windowHook(int code, WPARAM w, LPARAM l) noexcept {
    const auto window = reinterpret_cast<HWND>(w);
    if (code == HCBT_ACTIVATE && isMessageBox(window))
        tellAll([=](DialogObserver& observer) { observer.messageBoxShown(window); });
    if (code == HCBT_DESTROYWND) tellAll([=](DialogObserver& observer) { observer.windowGone(window); });
    return CallNextHookEx(nullptr, code, w, l);
}
