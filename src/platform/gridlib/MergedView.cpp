#include "src/platform/gridlib/MergedView.h"

MergedView::MergedView(const GridTable& table, CellPlace first, CellPlace last)
    : m_first(first), m_last(last), m_width(index(last.col, first.col) + 1) {
    m_blockAt.reserve((index(last.row, first.row) + 1) * m_width);
    findRuns(table, 0);
    for (uint32_t row = first.row; row <= last.row; ++row) findRuns(table, row);
}

void MergedView::findRuns(const GridTable& table, uint32_t row) {
    const CGXRange within(row, 0, row, m_last.col);
    const size_t above = m_blockAt.size() - m_width;
    uint32_t col = 0;
    for (size_t i = 0; i < m_width;) {
        const CGXRange run = table.isMerging() ? table.run(row, col, within) : CGXRange(row, col);
        uint32_t block = static_cast<uint32_t>(m_blocks.size());
        // Headers merge with no data.
        if (row > m_first.row) {
            const uint32_t upper = m_blockAt[above + i];
            CGXRange lowest = m_blocks[upper];
            lowest.top = lowest.bottom;
            if (table.isMerging() && table.joinsDown(lowest, run)) block = upper;
        }
        if (block == m_blocks.size())
            m_blocks.push_back(run);
        else
            m_blocks[block].bottom = row;
        for (; i < m_width && col <= run.right; ++i) {
            m_blockAt.push_back(block);
            col = i == 0 ? m_first.col : col + 1;
        }
    }
}
