// Scroll bars and wheel of a grid's window.
#include <algorithm>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/GridMessages.h"

void CGXGridWnd::scrollTo(int64_t firstRow, int64_t firstCol) {
    if (!(m_rows.setFirst(firstRow) | m_cols.setFirst(firstCol))) return;
    invalidateAll();
    wantBars();
    placeEditor();
}

void CGXGridWnd::wantBars() {
    if (m_barsWanted || !m_hWnd) return;
    m_barsWanted = PostMessage(WM_GRID_UPDATE_BARS);
}

LRESULT CGXGridWnd::updateBars(WPARAM, LPARAM) {
    m_barsWanted = false;
    takeCurrent();
    setBar(SB_VERT, m_rows);
    setBar(SB_HORZ, m_cols);
    return 0;
}

// A bar that isn't needed goes away.
void CGXGridWnd::setBar(int bar, const TrackView& view) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = 1;
    info.nMax = static_cast<int>(std::max(view.last(), 1u));
    info.nPage = view.last() < 1 ? 1 : view.last() - view.lastFirst() + 1;
    info.nPos = static_cast<int>(view.first());
    SCROLLINFO& former = m_bars[bar == SB_VERT];
    if (info.nMax == former.nMax && info.nPage == former.nPage && info.nPos == former.nPos) return;
    former = info;
    SetScrollInfo(m_hWnd, bar, &info, TRUE);
}

int64_t CGXGridWnd::scrolled(int bar, const TrackView& view, UINT code) const {
    const int64_t first = view.first(), page = view.page();
    switch (code) {
        case SB_LINEUP:
            return first - 1;
        case SB_LINEDOWN:
            return first + 1;
        case SB_PAGEUP:
            return first - page;
        case SB_PAGEDOWN:
            return first + page;
        case SB_TOP:
            return 1;
        case SB_BOTTOM:
            return view.lastFirst();
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: {
            // The message has 16 bits only.
            SCROLLINFO info{};
            info.cbSize = sizeof info;
            info.fMask = SIF_TRACKPOS;
            return GetScrollInfo(m_hWnd, bar, &info) ? info.nTrackPos : first;
        }
        default:
            return first;
    }
}

void CGXGridWnd::onVScroll(UINT code, UINT) { scrollTo(scrolled(SB_VERT, m_rows, code), m_cols.first()); }

void CGXGridWnd::onHScroll(UINT code, UINT) { scrollTo(m_rows.first(), scrolled(SB_HORZ, m_cols, code)); }

void CGXGridWnd::onWheel(UINT keys, int delta, POINT) {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int64_t step = lines == WHEEL_PAGESCROLL ? m_rows.page() : lines;
    m_wheelRest += delta;
    const int notches = m_wheelRest / WHEEL_DELTA;
    m_wheelRest %= WHEEL_DELTA;
    if (keys & MK_SHIFT)
        scrollTo(m_rows.first(), m_cols.first() - int64_t{notches});
    else
        scrollTo(m_rows.first() - notches * step, m_cols.first());
}

LRESULT CGXGridWnd::onWheelAcross(WPARAM w, LPARAM) {
    scrollTo(m_rows.first(), int64_t{m_cols.first()} + static_cast<short>(HIWORD(w)) / WHEEL_DELTA);
    return 0;
}
