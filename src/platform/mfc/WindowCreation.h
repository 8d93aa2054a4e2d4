// Where a window that is being created meets its wrapper.
#pragma once

#include <windows.h>

class CWnd;

// While it lives, the next window that this thread creates belongs to `wrapper` from its first message on.
class WindowCreation {
  public:
    explicit WindowCreation(CWnd& wrapper);
    ~WindowCreation();
    WindowCreation(const WindowCreation&) = delete;
    WindowCreation& operator=(const WindowCreation&) = delete;

  private:
    static LRESULT CALLBACK hook(int code, WPARAM w, LPARAM l) noexcept;
    static void unhook();

    static CWnd* s_wrapper;
    static HHOOK s_hook;
};
