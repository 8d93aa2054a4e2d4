// Copying and pasting in a grid's window.
#include <algorithm>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/GridClipboard.h"
#include "src/platform/gridlib/PastedCells.h"

// What the clipboard's commands are about: the range that was selected last, else the current cell.
std::optional<CGXRange> CGXGridWnd::copied() const {
    if (!m_selection.ranges().empty()) return m_table.within(m_selection.ranges().back());
    if (!m_selection.hasCurrent()) return std::nullopt;
    return CGXRange(m_selection.current().row, m_selection.current().col);
}

bool CGXGridWnd::copy() {
    const auto cells = copied();
    if (!cells) return false;
    if (cells->cellCount() > MOST_CELLS) {
        OnTooManyCells();
        return false;
    }
    CellRows rows;
    for (uint32_t row = cells->top; row <= cells->bottom; ++row) {
        CStringArray& texts = rows.emplace_back();
        for (uint32_t col = cells->left; col <= cells->right; ++col)
            texts.emplace_back(m_table.value(row, col));
    }
    return putOnClipboard(m_hWnd, rows);
}

void CGXGridWnd::paste() {
    const auto cells = copied();
    const auto rows = cells ? cellsOnClipboard(m_hWnd) : std::nullopt;
    if (!rows) return;
    const PastedCells pasted = pastedCells(m_table, *cells, *rows, MOST_CELLS);
    if (pasted.tooMany) return OnTooManyCells();
    m_refused.clear();
    const std::vector<CellPlace> changed = m_table.enter(pasted.entries, m_refused);
    std::sort(m_refused.begin(), m_refused.end());
    invalidateAll();
    OnPasted(pasted.entries.size() - m_refused.size(), m_refused.size(), pasted.outside);
    if (isLive()) tellModified(changed);
}
