// Where the program stands, for the message of a time-out: written by the main thread, read by the watchdog.
#pragma once

#include <mutex>
#include <string>

class Progress {
  public:
    void set(std::wstring place) {
        const std::lock_guard lock(m_mutex);
        m_place = std::move(place);
    }
    // Empty while no session has played.
    std::wstring place() const {
        const std::lock_guard lock(m_mutex);
        return m_place;
    }

  private:
    mutable std::mutex m_mutex;
    std::wstring m_place;
};
