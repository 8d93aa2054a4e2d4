// Scroll bars and wheel of a grid's window.
#include <utility>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/GridMessages.h"

void CGXGridWnd::showScrolled(bool moved) {
    if (!moved) return;
    invalidateAll();
    settleLater();
    placeEditor();
}

void CGXGridWnd::settleLater() {
    if (m_settlesLater || !m_hWnd) return;
    m_settlesLater = PostMessage(WM_GRID_SETTLE);
}

LRESULT CGXGridWnd::onSettle(WPARAM, LPARAM) {
    m_settlesLater = false;
    takeCurrent();
    setBar(SB_VERT, m_rows);
    setBar(SB_HORZ, m_cols);
    noticeCurrentValue();
    placeEditor();
    return 0;
}

// A bar that isn't needed goes away.
void CGXGridWnd::setBar(int bar, const TrackView& view) {
    const TrackView::Bar now = view.bar();
    if (now == std::exchange(m_bars[bar == SB_VERT], now)) return;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = now.last;
    info.nPage = static_cast<UINT>(now.page);
    info.nPos = now.position;
    SetScrollInfo(m_hWnd, bar, &info, TRUE);
}

bool CGXGridWnd::scroll(int bar, TrackView& view, UINT code) {
    using Stride = TrackView::Stride;
    switch (code) {
        case SB_LINEUP:
            return view.scrollBy(-1, Stride::quarter);
        case SB_LINEDOWN:
            return view.scrollBy(1, Stride::quarter);
        case SB_PAGEUP:
            return view.scrollBy(-int64_t{view.page()}, Stride::whole);
        case SB_PAGEDOWN:
            return view.scrollBy(view.page(), Stride::whole);
        case SB_TOP:
            return view.setBarPosition(0);
        case SB_BOTTOM:
            return view.setBarPosition(view.bar().last);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: {
            // The message has 16 bits only.
            SCROLLINFO info{};
            info.cbSize = sizeof info;
            info.fMask = SIF_TRACKPOS;
            return GetScrollInfo(m_hWnd, bar, &info) && view.setBarPosition(info.nTrackPos);
        }
        default:
            return false;
    }
}

void CGXGridWnd::onVScroll(UINT code, UINT) { showScrolled(scroll(SB_VERT, m_rows, code)); }

void CGXGridWnd::onHScroll(UINT code, UINT) { showScrolled(scroll(SB_HORZ, m_cols, code)); }

void CGXGridWnd::onWheel(UINT keys, int delta, POINT) {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    m_wheelRest += delta;
    const int64_t notches = m_wheelRest / WHEEL_DELTA;
    m_wheelRest %= WHEEL_DELTA;
    if (keys & MK_SHIFT) return showScrolled(m_cols.scrollBy(-notches, TrackView::Stride::quarter));
    const int64_t step = lines == WHEEL_PAGESCROLL ? m_rows.page() : lines;
    showScrolled(m_rows.scrollBy(-notches * step, TrackView::Stride::quarter));
}

LRESULT CGXGridWnd::onWheelAcross(WPARAM w, LPARAM) {
    const int notches = static_cast<short>(HIWORD(w)) / WHEEL_DELTA;
    showScrolled(m_cols.scrollBy(notches, TrackView::Stride::quarter));
    return 0;
}
