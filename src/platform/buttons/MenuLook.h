// How the items of a menu are drawn: by the theme where one is active, otherwise in the colours of the
// platform's own menus.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include <string>

#include "src/platform/buttons/MenuLayout.h"
#include "src/platform/mfc/Drawing.h"
#include "src/platform/mfc/HighContrast.h"

enum class MenuMark { none, check, radio };

// An item as it is drawn; what it points to is borrowed.
struct MenuItemLook {
    std::wstring_view text;  // label, tab, shortcut
    HICON icon = nullptr;
    MenuMark mark = MenuMark::none;
    bool isSeparator = false;
    bool opensMenu = false;
    bool disabled = false;
    bool selected = false;
    bool isDefault = false;
    bool hidesMnemonic = false;
};

class MenuLook {
  public:
    // For the display and the theme of that window; in the system's colors with high contrast.
    explicit MenuLook(HWND window, bool highContrast = highContrastIsOn());
    ~MenuLook();
    MenuLook(const MenuLook&) = delete;
    MenuLook& operator=(const MenuLook&) = delete;

    // Of a menu without texts yet.
    MenuMetrics metrics() const;
    // Makes the metrics as wide as that text needs.
    void measure(const MenuItemLook& item, MenuMetrics& metrics) const;
    void draw(HDC dc, const RECT& rect, const MenuItemLook& item, const MenuMetrics& metrics) const;

  private:
    bool hasPart(int part) const { return m_theme && IsThemePartDefined(m_theme, part, 0); }
    void drawBackground(HDC dc, const RECT& rect, const RECT& gutter, const MenuItemLook& item) const;
    void drawSeparator(HDC dc, const RECT& rect, int textLeft) const;
    void drawMark(HDC dc, const RECT& gutter, const RECT& box, const MenuItemLook& item,
                  COLORREF color) const;
    void drawIcon(HDC dc, const RECT& box, const MenuItemLook& item) const;
    COLORREF textColor(const MenuItemLook& item) const;
    HFONT font(const MenuItemLook& item) const { return item.isDefault ? m_defaultFont.get() : m_font.get(); }

    int m_dpi = USER_DEFAULT_SCREEN_DPI;
    int m_iconSide = 16;
    int m_lineHeight = 0;
    bool m_isFlat = false;  // the platform's own menus
    HTHEME m_theme = nullptr;
    UniqueFont m_font;
    UniqueFont m_defaultFont;
};
