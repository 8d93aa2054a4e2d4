// Where the host's Lisp prints and where errors go: standard output and standard error in UTF-8, and the main
// frame's output while there is one. Any thread may use it.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

class Console {
  public:
    using Listener = std::function<void(std::wstring_view)>;

    // Standard output. What ends in a line end, or has grown long, is handed on at once.
    void print(std::wstring_view text);
    // One line on standard error, behind all that was printed before; a line begun on standard output ends
    // first, since the two often show on one screen.
    void error(std::wstring_view line);
    void flush();
    // Is shown all that the calling thread prints from now on, errors too, and the end of what was printed
    // before. It is set once.
    void setListener(Listener listener);

  private:
    bool isMidLine();
    void flushLocked();
    void tell(std::wstring_view text);

    std::mutex m_mutex;
    std::string m_pending;
    bool m_isMidLine = false;
    Listener m_listener;
    std::thread::id m_listenerThread;
    std::wstring m_before;  // what was printed before there was a listener
};
