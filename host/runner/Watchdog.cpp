#include "host/runner/Watchdog.h"

#include <string>

#include "host/drive/MessageBoxes.h"
#include "host/drive/Player.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

constexpr UINT TIME_RAN_OUT = 4;

// Appends the caption of a visible dialog. The thread that owns it may hang, so it isn't sent a message.
BOOL CALLBACK appendDialog(HWND window, LPARAM list) noexcept {
    wchar_t caption[256] = {};
    if (IsWindowVisible(window) && isSystemDialog(window)) {
        InternalGetWindowText(window, caption, ARRAYSIZE(caption));
        reinterpret_cast<std::wstring*>(list)->append(L"\n  dialog \"").append(caption).append(L"\" is open");
    }
    return TRUE;
}

}  // namespace

Watchdog::Watchdog(double seconds) : m_stop(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    // Beyond what the platform counts, some 49 days, there is no end.
    const double wanted = seconds * 1000;
    const DWORD milliseconds = wanted < INFINITE ? static_cast<DWORD>(wanted) : INFINITE;
    m_thread = std::thread(
        [this, mainThread = GetCurrentThreadId(), milliseconds] { watch(mainThread, milliseconds); });
}

Watchdog::~Watchdog() {
    SetEvent(m_stop);
    m_thread.join();
    CloseHandle(m_stop);
}

void Watchdog::watch(DWORD mainThread, DWORD milliseconds) const {
    if (WaitForSingleObject(m_stop, milliseconds) != WAIT_TIMEOUT) return;
    std::wstring report = L"time ran out";
    EnumThreadWindows(mainThread, &appendDialog, reinterpret_cast<LPARAM>(&report));
    const std::wstring step = player().progress().place();
    if (!step.empty()) report += L"\n  the last step was " + step;
    const std::wstring action = host().actions().running();
    if (!action.empty()) report += L"\n  the action that runs is that of " + action;
    const std::wstring place = wideText(host().lisp().place().text());
    if (!place.empty()) report += L"\n  the last call was at " + place;
    host().console().error(report);
    TerminateProcess(GetCurrentProcess(), TIME_RAN_OUT);
}
