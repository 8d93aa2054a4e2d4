// A part of a table: cells, whole rows, whole columns, or all of it. Row 0 and column 0 are the headers.
// Portable.
#pragma once

#include <algorithm>
#include <cstdint>

class CGXRange {
  public:
    enum Kind { cells, rows, columns, table };

    // Of cells that are named, the corners may come in any order.
    CGXRange(uint32_t row, uint32_t col) : CGXRange(row, col, row, col) {}
    CGXRange(uint32_t fromRow, uint32_t fromCol, uint32_t toRow, uint32_t toCol)
        : kind(cells),
          top(std::min(fromRow, toRow)),
          left(std::min(fromCol, toCol)),
          bottom(std::max(fromRow, toRow)),
          right(std::max(fromCol, toCol)) {}

    static CGXRange ofRows(uint32_t from, uint32_t to) { return CGXRange(from, 0, to, LAST).as(rows); }
    static CGXRange ofColumns(uint32_t from, uint32_t to) { return CGXRange(0, from, LAST, to).as(columns); }
    static CGXRange ofTable() { return CGXRange(0, 0, LAST, LAST).as(table); }

    bool contains(uint32_t row, uint32_t col) const {
        return row >= top && row <= bottom && col >= left && col <= right;
    }
    uint64_t cellCount() const { return (uint64_t{bottom} - top + 1) * (uint64_t{right} - left + 1); }
    bool touches(const CGXRange& other) const {
        return top <= other.bottom && other.top <= bottom && left <= other.right && other.left <= right;
    }
    bool operator==(const CGXRange&) const = default;

    static constexpr uint32_t LAST = 0xFFFFFFFF;

    Kind kind;
    // Inclusive. Whole rows and columns reach to LAST.
    uint32_t top, left, bottom, right;

  private:
    CGXRange as(Kind other) const {
        CGXRange range = *this;
        range.kind = other;
        return range;
    }
};
