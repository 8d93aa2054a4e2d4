// With what a grid is drawn: font, colours, the theme's parts, sizes at the display's scale.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include <array>
#include <memory>
#include <string_view>

#include "src/platform/mfc/Drawing.h"

class GridLook {
  public:
    // Takes everything anew, when the window is made and when theme, colours or font change. `font` is
    // borrowed; null: the platform's.
    void refresh(HWND window, HFONT font);

    HFONT font() const { return m_font; }
    int dotsPerInch() const { return m_dots; }
    // Pixels of the display for pixels at 96 dots per inch.
    int scaled(int pixels) const { return MulDiv(pixels, m_dots, USER_DEFAULT_SCREEN_DPI); }
    int lineHeight() const { return m_lineHeight; }
    // Between a cell's border and its text.
    int margin() const { return scaled(3); }

    // The width of a text of one line. Most texts need no call of the platform.
    int textWidth(HDC dc, std::wstring_view text) const;
    // The height of a text in that width, broken at words and line ends.
    int wrappedHeight(HDC dc, std::wstring_view text, int width) const;

    // --- colours

    COLORREF window, text, face, faceText, grayText, highlight, highlightText, line, headerLine, workspace;
    // What interior becomes under a selection.
    COLORREF selected(COLORREF interior) const;
    bool isHighContrast() const { return m_highContrast; }

    // --- parts; each fills its rectangle

    void drawHeader(HDC dc, RECT rect) const;
    void drawRaised(HDC dc, RECT rect) const;
    // In the middle of the rectangle.
    void drawTick(HDC dc, const RECT& rect, bool ticked, bool enabled) const;
    // The arrow of a drop-down list, at the right end of the cell; returns its width.
    int drawDropArrow(HDC dc, const RECT& cell) const;

  private:
    struct CloseTheme {
        void operator()(HTHEME theme) const { CloseThemeData(theme); }
    };
    using UniqueTheme = drawing::Unique<HTHEME, CloseTheme>;

    HFONT m_font = nullptr;
    int m_dots = USER_DEFAULT_SCREEN_DPI;
    int m_lineHeight = 13;
    bool m_highContrast = false;
    UniqueTheme m_buttonTheme;
    std::array<int, 256> m_widths{};  // of the first 256 letters
};

// Fills without making a brush.
void fillRect(HDC dc, const RECT& rect, COLORREF color);
