#include "src/platform/buttons/CXPStyleButtonST.h"

IMPLEMENT_DYNAMIC(CXPStyleButtonST, CButtonST)

void CXPStyleButtonST::SetThemeHelper(CThemeHelperST* helper) {
    m_themeHelper = helper;
    Invalidate();
}

const MessageMap& CXPStyleButtonST::messageMap() const {
    static const MessageMap map(CButtonST::messageMap(),
                                {on<WM_THEMECHANGED, &CXPStyleButtonST::onThemeChanged>()});
    return map;
}

ButtonGround CXPStyleButtonST::drawFace(HDC dc, const ButtonState& state, const RECT& area) {
    ButtonGround ground{area, area, 0};
    if (m_themeHelper && m_themeHelper->drawPushButton(m_hWnd, dc, buttonFace(state), ground.content,
                                                       ground.focus, ground.text))
        return ground;
    return CButtonST::drawFace(dc, state, area);
}

void CXPStyleButtonST::onThemeChanged() {
    if (m_themeHelper) m_themeHelper->close();
    Invalidate();
}
