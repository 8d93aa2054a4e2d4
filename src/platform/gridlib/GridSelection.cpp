#include "src/platform/gridlib/GridSelection.h"

#include <algorithm>
#include <utility>

bool GridSelection::contains(uint32_t row, uint32_t col) const {
    return std::any_of(m_ranges.begin(), m_ranges.end(),
                       [&](const CGXRange& range) { return range.contains(row, col); });
}

CGXRange GridSelection::rangeTo(CellPlace to) const {
    const auto [fromRow, toRow] = std::minmax(m_anchor.row, to.row);
    const auto [fromCol, toCol] = std::minmax(m_anchor.col, to.col);
    CGXRange range(fromRow, fromCol, toRow, toCol);
    if (m_kind == CGXRange::rows) range = CGXRange::ofRows(fromRow, toRow);
    if (m_kind == CGXRange::columns) range = CGXRange::ofColumns(fromCol, toCol);
    if (m_kind == CGXRange::table) range = CGXRange::ofTable();
    range.top = std::max(range.top, 1u);
    return range;
}

void GridSelection::begin(CGXRange::Kind kind, CellPlace at, bool add) {
    m_kind = kind;
    m_current = m_anchor = m_extent = at;
    const CGXRange range = rangeTo(at);
    if (!add) m_ranges.clear();
    const auto same = std::find(m_ranges.begin(), m_ranges.end(), range);
    if (same != m_ranges.end())
        m_ranges.erase(same);
    else
        m_ranges.push_back(range);
}

void GridSelection::extend(CellPlace to) {
    if (m_ranges.empty()) {
        if (!hasCurrent()) m_current = m_anchor = to;
        m_ranges.push_back(rangeTo(to));
    }
    m_extent = to;
    m_ranges.back() = rangeTo(to);
}

void GridSelection::all() {
    m_kind = CGXRange::table;
    m_anchor = m_extent = m_current;
    m_ranges = {rangeTo(m_anchor)};
}

void GridSelection::setCurrent(CellPlace at) {
    m_kind = CGXRange::cells;
    m_current = m_anchor = m_extent = at;
    m_ranges.clear();
}

void GridSelection::restore(CellPlace current, std::vector<CGXRange> ranges) {
    setCurrent(current);
    for (CGXRange& range : ranges) range.top = std::max(range.top, 1u);
    if (!ranges.empty()) m_kind = ranges.back().kind;
    m_ranges = std::move(ranges);
}

void GridSelection::cut(uint32_t rowCount, uint32_t colCount) {
    std::erase_if(m_ranges,
                  [&](const CGXRange& range) { return range.top > rowCount || range.left > colCount; });
    for (CGXRange& range : m_ranges) {
        // Whole rows, columns and tables reach as far as the table does anyway.
        if (range.bottom != CGXRange::LAST) range.bottom = std::min(range.bottom, rowCount);
        if (range.right != CGXRange::LAST) range.right = std::min(range.right, colCount);
    }
    for (CellPlace* place : {&m_current, &m_anchor, &m_extent}) {
        place->row = std::min(place->row, rowCount);
        place->col = std::min(place->col, colCount);
    }
}
