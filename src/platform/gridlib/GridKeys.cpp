// What the keyboard does in a grid's window while no cell is open.
#include <algorithm>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/CellKind.h"

namespace {

bool isDown(int key) { return GetKeyState(key) < 0; }

// The next one in that direction that isn't hidden; `from` where there is none. 1 or -1.
uint32_t nextShown(const TrackSizes& sizes, uint32_t from, int step, uint32_t lowest) {
    for (int64_t at = int64_t{from} + step; at >= lowest && at < sizes.count(); at += step)
        if (sizes.size(static_cast<uint32_t>(at)) > 0) return static_cast<uint32_t>(at);
    return from;
}

}  // namespace

// Tab, Enter and Esc are the dialog's, as long as no cell is open.
LRESULT CGXGridWnd::onGetDlgCode(WPARAM, LPARAM) { return DLGC_WANTARROWS | DLGC_WANTCHARS; }

LRESULT CGXGridWnd::onKeyDown(WPARAM key, LPARAM) {
    const bool control = isDown(VK_CONTROL), shift = isDown(VK_SHIFT);
    const UINT code = static_cast<UINT>(key);
    return commandByKey(code, control, shift) || moveByKey(code, control, shift) ? 0 : Default();
}

// Alt and Down opens the choices, as in a drop-down list.
LRESULT CGXGridWnd::onSysKeyDown(WPARAM key, LPARAM) {
    if (key != VK_DOWN || !startEditing(false)) return Default();
    m_editor.dropDown();
    return 0;
}

bool CGXGridWnd::commandByKey(UINT key, bool control, bool shift) {
    switch (key) {
        case VK_F2:
            startEditing(false);
            return true;
        case VK_F4:
            if (startEditing(false)) m_editor.dropDown();
            return true;
        case VK_DELETE:
            if (!shift || copy()) emptySelection();
            return true;
        case VK_INSERT:
            if (shift) paste();
            if (control) copy();
            return shift || control;
    }
    if (!control) return false;
    switch (key) {
        case 'A':
            m_selection.all();
            selectionMoved(false);
            tellSelection(false, true);
            return true;
        case 'C':
            copy();
            return true;
        case 'X':
            if (copy()) emptySelection();
            return true;
        case 'V':
            paste();
            return true;
        case 'Z':
        case 'Y':
            undoOrRedo(key == 'Z' && !shift);
            return true;
    }
    return false;
}

CellPlace CGXGridWnd::neighbour(CellPlace from, UINT key, bool control) const {
    const CGXRange cells = m_table.merged(from.row, from.col);
    const uint32_t lastRow = GetRowCount(), lastCol = GetColCount();
    const auto paged = [&](int64_t row) {
        return static_cast<uint32_t>(std::clamp<int64_t>(row, 1, lastRow));
    };
    switch (key) {
        case VK_UP:
            return {control ? 1 : nextShown(m_table.heights(), cells.top, -1, 1), from.col};
        case VK_DOWN:
            return {control ? lastRow : nextShown(m_table.heights(), cells.bottom, 1, 1), from.col};
        case VK_LEFT:
            return {from.row, control ? 0 : nextShown(m_table.widths(), cells.left, -1, 0)};
        case VK_RIGHT:
            return {from.row, control ? lastCol : nextShown(m_table.widths(), cells.right, 1, 0)};
        case VK_PRIOR:
            return {paged(int64_t{from.row} - m_rows.page()), from.col};
        case VK_NEXT:
            return {paged(int64_t{from.row} + m_rows.page()), from.col};
        case VK_HOME:
            return {control ? 1 : from.row, std::min(1u, lastCol)};
        case VK_END:
            return {control ? lastRow : from.row, lastCol};
        default:
            return from;
    }
}

bool CGXGridWnd::moveByKey(UINT key, bool control, bool shift) {
    const bool isArrow = key >= VK_PRIOR && key <= VK_DOWN;  // page keys, End, Home and the arrows, in a row
    if (!isArrow || GetRowCount() == 0) return isArrow;
    takeCurrent();
    if (m_selection.hasCurrent())
        moveTo(neighbour(shift ? m_selection.extent() : m_selection.current(), key, control), shift);
    return true;
}

void CGXGridWnd::moveTo(CellPlace to, bool extend) {
    if (!m_table.has(to.row, to.col)) return;
    const CellPlace current = m_selection.current();
    if (!extend) {
        const CGXRange merged = m_table.merged(to.row, to.col);
        to = {merged.top, merged.left};
        if (to == current && m_selection.ranges().size() == 1 && m_selection.extent() == to) return;
        if (to != current && m_selection.hasCurrent() &&
            !OnLeftCell(current.row, current.col, to.row, to.col))
            return;
        if (!m_table.has(to.row, to.col)) return;
        m_selection.begin(CGXRange::cells, to);
        selectionMoved(true);
        if (merged != CGXRange(to.row, to.col)) m_selection.extend({merged.bottom, merged.right});
    } else {
        if (to == m_selection.extent() && !m_selection.ranges().empty()) return;
        m_selection.extend(to);
        selectionMoved(true);
    }
    tellSelection(false, true);
}

void CGXGridWnd::tellSelection(bool dragging, bool key) {
    const auto& ranges = m_selection.ranges();
    const auto range = ranges.empty() ? std::nullopt : m_table.within(ranges.back());
    OnChangedSelection(range ? &*range : nullptr, dragging, key);
}

void CGXGridWnd::onChar(UINT c, UINT) {
    const CellPlace at = m_selection.current();
    if (c < L' ' || c == 0x7F) return;
    if (c == L' ' && isEditableAt(at) && cellKind(m_table.style(at.row, at.col)) == CellKind::check)
        return toggle(at);
    if (startEditing(true)) m_editor.type(static_cast<wchar_t>(c));
}
