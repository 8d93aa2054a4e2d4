#include "src/tiles/WexScrollBar.h"

#include <algorithm>

#include "src/dialog/EventBridge.h"

IMPLEMENT_DYNAMIC(WexScrollBar, CScrollBar)

const MessageMap& WexScrollBar::messageMap() const {
    static const MessageMap map(CScrollBar::messageMap(),
                                {
                                    onReflectedMessage<WM_HSCROLL, &WexScrollBar::onScroll>(),
                                    onReflectedMessage<WM_VSCROLL, &WexScrollBar::onScroll>(),
                                    on<WM_HSCROLL, &WexScrollBar::onScroll>(),
                                    on<WM_VSCROLL, &WexScrollBar::onScroll>(),
                                });
    return map;
}

// Every message sets the position and runs the action, also one that moved nothing.
void WexScrollBar::onScroll(UINT code, UINT position) {
    int low = 0, high = 0;
    GetScrollRange(low, high);
    switch (code) {
        case SB_LINEUP:
            if (m_position > low) m_position -= m_lineStep;
            break;
        case SB_LINEDOWN:
            if (m_position < high) m_position += m_lineStep;
            break;
        case SB_PAGEUP:
            m_position = std::max(m_position - m_pageStep, low);
            break;
        case SB_PAGEDOWN:
            m_position = std::min(m_position + m_pageStep, high);
            break;
        case SB_THUMBTRACK:
            m_position = static_cast<int>(position);
            break;
        default:
            break;
    }
    m_position = std::max(low, std::min(m_position, high));
    SetScrollPos(m_position);
    publish(*this, std::to_wstring(m_position), REASON_SCROLLED, m_action);
}
