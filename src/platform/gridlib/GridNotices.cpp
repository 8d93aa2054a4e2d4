// What assistive programs hear of a grid's window without asking.
#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/GridAccessible.h"

void CGXGridWnd::noticeSelection() {
    const auto notice = [this](DWORD event, long child) {
        NotifyWinEvent(event, m_hWnd, OBJID_CLIENT, child);
    };
    const CellPlace at = m_selection.current();
    const long child = childOf(at.row, at.col, GetColCount());
    const auto& ranges = m_selection.ranges();
    if (::GetFocus() == m_hWnd) notice(EVENT_OBJECT_FOCUS, child);
    if (ranges.size() == 1 && ranges[0] == CGXRange(at.row, at.col))
        notice(EVENT_OBJECT_SELECTION, child);
    else
        notice(EVENT_OBJECT_SELECTIONWITHIN, CHILDID_SELF);
    noticeCurrentValue();
}

void CGXGridWnd::noticeValue(CellPlace at) {
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, m_hWnd, OBJID_CLIENT, childOf(at.row, at.col, GetColCount()));
    if (at == m_noticed.at) m_noticed.text = GetValueRowCol(at.row, at.col);
}

// Of what a program writes this is the cell that matters: events of all others would be too many.
void CGXGridWnd::noticeCurrentValue() {
    const CellPlace at = m_selection.current();
    if (!m_selection.hasCurrent()) return;
    const CString text = GetValueRowCol(at.row, at.col);
    if (at == m_noticed.at && text != m_noticed.text) noticeValue(at);
    m_noticed = {at, text};
}
