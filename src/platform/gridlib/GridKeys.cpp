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

// The one nearest to `at` that isn't hidden, in that direction first.
uint32_t shownNear(const TrackSizes& sizes, uint32_t at, int step, uint32_t lowest) {
    if (sizes.size(at) > 0) return at;
    const uint32_t next = nextShown(sizes, at, step, lowest);
    return next != at ? next : nextShown(sizes, at, -step, lowest);
}

}  // namespace

// Tab, Enter and Esc are the dialog's, as long as no cell is open.
LRESULT CGXGridWnd::onGetDlgCode(WPARAM, LPARAM) { return DLGC_WANTARROWS | DLGC_WANTCHARS; }

LRESULT CGXGridWnd::onKeyDown(WPARAM key, LPARAM) {
    // AltGr comes as Ctrl and Alt, and writes letters.
    const bool control = isDown(VK_CONTROL) && !isDown(VK_MENU), shift = isDown(VK_SHIFT);
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
            doCommand(Command::selectAll);
            return true;
        case 'C':
            doCommand(Command::copy);
            return true;
        case 'X':
            doCommand(Command::cut);
            return true;
        case 'V':
            doCommand(Command::paste);
            return true;
        case 'Z':
        case 'Y':
            doCommand(key == 'Z' && !shift ? Command::undo : Command::redo);
            return true;
    }
    return false;
}

CellPlace CGXGridWnd::neighbour(CellPlace from, UINT key, bool control) const {
    const CGXRange cells = m_table.merged(from.row, from.col);
    const uint32_t lastRow = GetRowCount(), lastCol = GetColCount();
    const TrackSizes &heights = m_table.heights(), &widths = m_table.widths();
    const uint32_t col = columnOf(from);
    const auto paged = [&](int64_t pages) {
        const int64_t row = from.row + pages * m_rows.page();
        return shownNear(heights, static_cast<uint32_t>(std::clamp<int64_t>(row, 1, lastRow)),
                         pages < 0 ? -1 : 1, 1);
    };
    const uint32_t topRow = shownNear(heights, 1, 1, 1), bottomRow = shownNear(heights, lastRow, -1, 1);
    const uint32_t rightCol = shownNear(widths, lastCol, -1, 0);
    switch (key) {
        case VK_UP:
            return {control ? topRow : nextShown(heights, cells.top, -1, 1), col};
        case VK_DOWN:
            return {control ? bottomRow : nextShown(heights, cells.bottom, 1, 1), col};
        case VK_LEFT:
            return {from.row, control ? 0 : nextShown(widths, cells.left, -1, 0)};
        case VK_RIGHT:
            return {from.row, control ? rightCol : nextShown(widths, cells.right, 1, 0)};
        case VK_PRIOR:
            return {paged(-1), col};
        case VK_NEXT:
            return {paged(1), col};
        case VK_HOME:
            return {control ? topRow : from.row, shownNear(widths, std::min(1u, lastCol), 1, 0)};
        case VK_END:
            return {control ? bottomRow : from.row, rightCol};
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
        const uint32_t col = to.col;
        to = {merged.top, merged.left};
        const bool isAlone = m_selection.ranges().size() == 1 && m_selection.contains(to.row, to.col);
        if (to == current && isAlone && m_selection.extent() == to) return;
        if (to != current && m_selection.hasCurrent() &&
            !OnLeftCell(current.row, current.col, to.row, to.col))
            return;
        if (!m_table.has(to.row, to.col)) return;
        m_selection.begin(CGXRange::cells, to);
        m_column = {to, col};
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
