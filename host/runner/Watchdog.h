// Ends the process when its time has run out, whatever it is doing then.
#pragma once

#include <windows.h>

#include <thread>

class Watchdog {
  public:
    // Says on standard error where the program stands, and exits with status 4, unless stopped within that
    // time, which may be infinite.
    explicit Watchdog(double seconds);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

  private:
    void watch(DWORD mainThread, DWORD milliseconds) const;

    HANDLE m_stop;
    std::thread m_thread;
};
