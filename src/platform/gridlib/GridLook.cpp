#include "src/platform/gridlib/GridLook.h"

#include <vssym32.h>

#include <algorithm>

#include "src/platform/mfc/HighContrast.h"

namespace {

// The theme's line between cells, where there is no system colour: a light grey.
constexpr COLORREF LIGHT_LINE = RGB(208, 212, 218);
// How much of the highlight shows through under a selection, of 16.
constexpr int HIGHLIGHT_SHARE = 5;

BYTE mixed(BYTE a, BYTE b) {
    return static_cast<BYTE>((a * (16 - HIGHLIGHT_SHARE) + b * HIGHLIGHT_SHARE) / 16);
}

}  // namespace

void fillRect(HDC dc, const RECT& rect, COLORREF color) {
    SetBkColor(dc, color);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}

void GridLook::refresh(HWND window, HFONT font) {
    m_font = font ? font : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    m_highContrast = highContrastIsOn();
    const ClientDC dc(window);
    const SelectedObject selectedFont(dc, m_font);
    m_dots = GetDeviceCaps(dc, LOGPIXELSX);
    TEXTMETRICW metric;
    GetTextMetricsW(dc, &metric);
    m_lineHeight = metric.tmHeight;
    if (!GetCharWidth32W(dc, 0, 255, m_widths.data())) m_widths.fill(metric.tmAveCharWidth);

    this->window = GetSysColor(COLOR_WINDOW);
    text = GetSysColor(COLOR_WINDOWTEXT);
    face = GetSysColor(COLOR_3DFACE);
    faceText = GetSysColor(COLOR_BTNTEXT);
    grayText = GetSysColor(COLOR_GRAYTEXT);
    highlight = GetSysColor(COLOR_HIGHLIGHT);
    highlightText = GetSysColor(COLOR_HIGHLIGHTTEXT);
    workspace = this->window;

    m_buttonTheme.reset(m_highContrast ? nullptr : OpenThemeData(window, L"BUTTON"));
    line = m_highContrast ? text : m_buttonTheme ? LIGHT_LINE : GetSysColor(COLOR_3DLIGHT);
    headerLine = m_highContrast ? text : GetSysColor(COLOR_3DSHADOW);
    if (line == this->window) line = GetSysColor(COLOR_3DSHADOW);
}

int GridLook::textWidth(HDC dc, std::wstring_view text) const {
    int width = 0;
    for (const wchar_t c : text) {
        if (c >= m_widths.size()) {
            SIZE size;
            GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
            return size.cx;
        }
        width += m_widths[c];
    }
    return width;
}

int GridLook::wrappedHeight(HDC dc, std::wstring_view text, int width) const {
    if (text.find(L'\n') == text.npos && textWidth(dc, text) <= width) return m_lineHeight;
    RECT rect{0, 0, std::max(width, 1), 0};
    DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rect,
              DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX | DT_EXPANDTABS);
    return rect.bottom;
}

COLORREF GridLook::selected(COLORREF interior) const {
    if (m_highContrast) return highlight;
    return RGB(mixed(GetRValue(interior), GetRValue(highlight)),
               mixed(GetGValue(interior), GetGValue(highlight)),
               mixed(GetBValue(interior), GetBValue(highlight)));
}

void GridLook::drawHeader(HDC dc, RECT rect) const {
    if (!m_highContrast && !m_buttonTheme) {
        fillRect(dc, rect, face);
        drawRaised(dc, rect);
        return;
    }
    fillRect(dc, rect, headerLine);
    --rect.right;
    --rect.bottom;
    fillRect(dc, rect, face);
}

void GridLook::drawRaised(HDC dc, RECT rect) const { DrawEdge(dc, &rect, BDR_RAISEDINNER, BF_RECT); }

void GridLook::drawTick(HDC dc, const RECT& rect, bool ticked, bool enabled) const {
    const int side = std::min<int>({scaled(13), rect.right - rect.left, rect.bottom - rect.top});
    if (side <= 0) return;
    const int left = (rect.left + rect.right - side) / 2, top = (rect.top + rect.bottom - side) / 2;
    RECT box{left, top, left + side, top + side};
    if (m_buttonTheme) {
        const int state = (ticked ? CBS_CHECKEDNORMAL : CBS_UNCHECKEDNORMAL) + (enabled ? 0 : 3);
        DrawThemeBackground(m_buttonTheme.get(), dc, BP_CHECKBOX, state, &box, nullptr);
    } else {
        DrawFrameControl(dc, &box, DFC_BUTTON,
                         DFCS_BUTTONCHECK | (ticked ? DFCS_CHECKED : 0) | (enabled ? 0 : DFCS_INACTIVE));
    }
}

int GridLook::drawDropArrow(HDC dc, const RECT& cell) const {
    const int half = scaled(3);
    const int width = 2 * half + 2 * margin();
    if (cell.right - cell.left < 2 * width) return 0;
    const int middle = cell.right - width / 2 - 1, top = (cell.top + cell.bottom - half) / 2;
    for (int i = 0; i < half + 1; ++i) {
        const RECT dash{middle - half + i, top + i, middle + half - i + 1, top + i + 1};
        fillRect(dc, dash, m_highContrast ? text : grayText);
    }
    return width;
}
