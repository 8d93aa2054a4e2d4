// What is selected in a table, and which cell is the current one. Portable.
//
// A gesture begins a range and extends it: a press and a drag, an arrow and arrows with Shift. Selected
// columns and a selected table begin at row 1, as the row of headers isn't data.
#pragma once

#include <vector>

#include "src/platform/gridlib/CGXRange.h"
#include "src/platform/gridlib/CellPlace.h"

class GridSelection {
  public:
    // Row 0: there is none.
    CellPlace current() const { return m_current; }
    bool hasCurrent() const { return m_current.row > 0; }
    // Where the last range has been extended to.
    CellPlace extent() const { return m_extent; }
    const std::vector<CGXRange>& ranges() const { return m_ranges; }
    bool contains(uint32_t row, uint32_t col) const;

    // Begins a range of that kind, with the current cell there. `add` keeps the other ranges; a range that is
    // begun where it stands already as a whole is taken away instead.
    void begin(CGXRange::Kind kind, CellPlace at, bool add = false);
    // The last range now reaches from where it was begun to that cell; without one it is begun.
    void extend(CellPlace to);
    // All data cells and row headers. The current cell stays.
    void all();
    // The current cell, with nothing selected.
    void setCurrent(CellPlace at);
    // As it was once, with the range that grows last.
    void restore(CellPlace current, std::vector<CGXRange> ranges);
    // The table has become smaller: what lies outside goes, the current cell moves in.
    void cut(uint32_t rowCount, uint32_t colCount);

  private:
    CGXRange rangeTo(CellPlace to) const;

    std::vector<CGXRange> m_ranges;
    CGXRange::Kind m_kind = CGXRange::cells;
    CellPlace m_current, m_anchor, m_extent;
};
