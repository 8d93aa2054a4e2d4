// Which cells of a view read as one, found in one pass over the view. Portable.
#pragma once

#include <cstdint>
#include <vector>

#include "src/platform/gridlib/GridTable.h"

class MergedView {
  public:
    // What is in view: the headers, and the rows and columns from the first ones to the last ones, inclusive;
    // none of them where the last one is before the first.
    MergedView(const GridTable& table, CellPlace first, CellPlace last);

    // The number of the block that a cell in view belongs to, below blockCount().
    size_t blockAt(uint32_t row, uint32_t col) const {
        return m_blockAt[index(row, m_first.row) * m_width + index(col, m_first.col)];
    }
    size_t blockCount() const { return m_blocks.size(); }
    // The cells that read as one: column headers those in their row, others as far as they are in the rows in
    // view and left of the view's right border.
    const CGXRange& block(size_t number) const { return m_blocks[number]; }

  private:
    // Of a row or column among those in view.
    static size_t index(uint32_t at, uint32_t first) { return at == 0 ? 0 : at - first + 1; }
    void findRuns(const GridTable& table, uint32_t row);

    CellPlace m_first, m_last;
    size_t m_width;
    std::vector<CGXRange> m_blocks;
    std::vector<uint32_t> m_blockAt;
};
