#include "src/platform/gridlib/CGXGridCore.h"

#include <algorithm>
#include <utility>

void CGXGridCore::tellChanged(const CGXRange& range) {
    if (m_locked)
        m_changedWhileLocked = true;
    else
        cellsChanged(range);
}

void CGXGridCore::tellResized() {
    m_selection.cut(GetRowCount(), GetColCount());
    tableResized();
    tellChanged(CGXRange::ofTable());
}

bool CGXGridCore::SetRowCount(uint32_t count, unsigned) {
    const uint32_t former = GetRowCount();
    if (!m_table.setRowCount(count)) return false;
    if (count == former) return true;
    if (count < former) m_selection.cut(GetRowCount(), GetColCount());
    tableResized();
    tellChanged(CGXRange::ofRows(std::min(count, former), CGXRange::LAST));
    return true;
}

bool CGXGridCore::SetColCount(uint32_t count, unsigned) {
    const uint32_t former = GetColCount();
    if (!m_table.setColCount(count)) return false;
    if (count != former) tellResized();
    return true;
}

void CGXGridCore::setSizes(TrackSizes& sizes, uint32_t from, uint32_t to, int32_t size, const int32_t* each) {
    if (!each) return sizes.set(from, to, size);
    to = std::min(to, sizes.count() - 1);
    for (uint32_t at = from; at <= to; ++at) sizes.set(at, at, each[at - from]);
}

void CGXGridCore::SetRowHeight(uint32_t from, uint32_t to, int32_t height, const int32_t* heights, unsigned,
                               int) {
    setSizes(m_table.heights(), from, to, height, heights);
    tableResized();
    tellChanged(CGXRange::ofRows(from, CGXRange::LAST));
}

void CGXGridCore::SetColWidth(uint32_t from, uint32_t to, int32_t width, const int32_t* widths, unsigned,
                              int) {
    setSizes(m_table.widths(), from, to, width, widths);
    tableResized();
    tellChanged(CGXRange::ofColumns(from, CGXRange::LAST));
}

bool CGXGridCore::SetStyleRange(const CGXRange& range, const CGXStyle& style, int, int, unsigned) {
    if (!m_table.apply(range, style)) return false;
    tellChanged(range);
    return true;
}

bool CGXGridCore::SetValueRange(const CGXRange& range, std::wstring_view text) {
    return SetStyleRange(range, CGXStyle().SetValue(text));
}

CString CGXGridCore::GetValueRowCol(uint32_t row, uint32_t col) const {
    if (m_open && m_open->at == CellPlace{row, col}) return m_open->text;
    return CString(m_table.value(row, col));
}

bool CGXGridCore::GetStyleRowCol(uint32_t row, uint32_t col, CGXStyle& style, int, int type) const {
    if (!m_table.has(row, col)) return false;
    style.apply(type == 0 ? m_table.ownStyle(row, col) : m_table.style(row, col));
    return true;
}

void CGXGridCore::ClearCells(const CGXRange& range, bool styles) {
    m_table.clear(range, styles);
    tellChanged(range);
}

void CGXGridCore::SetMergeCellsMode(int mode, bool) {
    if (m_table.isMerging() == (mode != 0)) return;
    m_table.setMerging(mode != 0);
    tellChanged(CGXRange::ofTable());
}

bool CGXGridCore::LockUpdate(bool lock) {
    const bool former = std::exchange(m_locked, lock);
    if (!lock && std::exchange(m_changedWhileLocked, false)) cellsChanged(CGXRange::ofTable());
    return former;
}

void CGXGridCore::Redraw(unsigned, bool) { tellChanged(CGXRange::ofTable()); }

bool CGXGridCore::SetCurrentCell(uint32_t row, uint32_t col, unsigned) {
    if (row == 0 || !m_table.has(row, col)) return false;
    m_selection.begin(CGXRange::cells, {row, col});
    selectionMoved(true);
    return true;
}
