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

    // Draws a push button's face with what lies behind it, and takes its border off `content`. False, with
    // nothing drawn, where no theme is active.
    bool drawPushButton(HWND button, HDC dc, ButtonFace face, RECT& content);
    // The theme has changed: it is looked up anew.
    void close();

  private:
    HTHEME m_theme = nullptr;
};
