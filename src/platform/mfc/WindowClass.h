// A window class of our own, which templates of any module may name.
#pragma once

#include <windows.h>

// Registered while it lives. Its windows do what the platform does by default until a wrapper takes their
// messages. Windows of the class must be gone before it goes.
class WindowClass {
  public:
    // `background` is borrowed, or a system colour plus one; null: nothing is painted. `style` adds to that
    // of a global class that tells of double clicks.
    WindowClass(const wchar_t* name, HBRUSH background, UINT style = 0);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

  private:
    ATOM m_atom;
};
