// Answers what the platform asks of a menu's owner, while the menu shows.
#pragma once

#include "src/platform/buttons/BCMenu.h"

class MenuOwner {
  public:
    // Measures the menu and those below it for the window's display and theme. Both must outlive the object.
    MenuOwner(HWND window, BCMenu& menu);
    ~MenuOwner();
    MenuOwner(const MenuOwner&) = delete;
    MenuOwner& operator=(const MenuOwner&) = delete;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                      DWORD_PTR self) noexcept;
    bool measure(MEASUREITEMSTRUCT& asked) const;
    bool draw(const DRAWITEMSTRUCT& asked) const;
    LRESULT key(wchar_t letter, HMENU handle) const;

    HWND m_window;
    BCMenu& m_menu;
    MenuLook m_look;
};
