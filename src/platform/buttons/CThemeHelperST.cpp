#include "src/platform/buttons/CThemeHelperST.h"

#include <vssym32.h>

#include <utility>

bool CThemeHelperST::drawPushButton(HWND button, HDC dc, ButtonFace face, RECT& content, RECT& focus,
                                    COLORREF& text) {
    if (!m_theme && IsThemeActive()) m_theme = OpenThemeData(button, L"BUTTON");
    if (!m_theme) return false;
    const RECT whole = content;
    const int state = static_cast<int>(face);
    DrawThemeParentBackground(button, dc, nullptr);
    DrawThemeBackground(m_theme, dc, BP_PUSHBUTTON, state, &whole, nullptr);
    GetThemeBackgroundContentRect(m_theme, dc, BP_PUSHBUTTON, state, &whole, &content);
    MARGINS margins = {};
    GetThemeMargins(m_theme, dc, BP_PUSHBUTTON, state, TMT_CONTENTMARGINS, nullptr, &margins);
    focus = {whole.left + margins.cxLeftWidth, whole.top + margins.cyTopHeight,
             whole.right - margins.cxRightWidth, whole.bottom - margins.cyBottomHeight};
    if (FAILED(GetThemeColor(m_theme, BP_PUSHBUTTON, state, TMT_TEXTCOLOR, &text)))
        text = GetSysColor(face == ButtonFace::disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
    return true;
}

void CThemeHelperST::close() {
    if (m_theme) CloseThemeData(std::exchange(m_theme, nullptr));
}
