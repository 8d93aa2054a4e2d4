// The theme's drawing of push buttons, where a theme is active.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include "src/platform/buttons/ButtonLook.h"

class CThemeHelperST {
  public:
    CThemeHelperST() = default;
    ~CThemeHelperST() { close(); }
    CThemeHelperST(const CThemeHelperST&) = delete;
    CThemeHelperST& operator=(const CThemeHelperST&) = delete;

    // Draws a push button's face over `content` with what lies behind it, takes its border off `content`, and
    // tells where the theme shows the focus and the color of its text. False, with nothing drawn, where no
    // theme is active.
    bool drawPushButton(HWND button, HDC dc, ButtonFace face, RECT& content, RECT& focus, COLORREF& text);
    // The theme has changed: it is looked up anew.
    void close();

  private:
    HTHEME m_theme = nullptr;
};
