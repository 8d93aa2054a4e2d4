#include "host/runner/Watchdog.h"

#include "host/runner/WhereItStood.h"
#include "host/services/Host.h"

namespace {

constexpr UINT TIME_RAN_OUT = 4;

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
    host().console().error(L"time ran out" + whereItStood(mainThread));
    TerminateProcess(GetCurrentProcess(), TIME_RAN_OUT);
}
