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

void CXPStyleButtonST::drawFace(HDC dc, const ButtonState& state, RECT& content) {
    if (m_themeHelper && m_themeHelper->drawPushButton(m_hWnd, dc, buttonFace(state), content)) return;
    CButtonST::drawFace(dc, state, content);
}

void CXPStyleButtonST::onThemeChanged() {
    if (m_themeHelper) m_themeHelper->close();
    Invalidate();
}
