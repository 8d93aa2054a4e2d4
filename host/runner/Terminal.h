// Lines that come from standard input, read beside the message loop.
#pragma once

#include <windows.h>

#include <deque>
#include <mutex>
#include <optional>
#include <string>

class Terminal {
  public:
    // Begins to read. The reading thread lives until the process ends, since a read can't be called off.
    Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    // Signalled while there is a line to take, or the input has ended.
    HANDLE event() const { return m_event; }
    // The next line without its end; nothing where none has come yet.
    std::optional<std::wstring> takeLine();
    // The input has ended and all lines were taken.
    bool isOver();
    // A person types there, not a file or a pipe.
    static bool isPerson();

  private:
    void read();
    void add(const std::string& line);

    HANDLE m_event;
    std::mutex m_mutex;
    std::deque<std::wstring> m_lines;
    bool m_ended = false;
};
