// While it lives, windows are created with the themed controls that the module's manifest (resource 2) asks
// for, whatever the host's executable asks for.
#pragma once

#include <windows.h>

class ThemeContext {
  public:
    ThemeContext();
    ~ThemeContext();
    ThemeContext(const ThemeContext&) = delete;
    ThemeContext& operator=(const ThemeContext&) = delete;

  private:
    ULONG_PTR m_cookie = 0;
};
