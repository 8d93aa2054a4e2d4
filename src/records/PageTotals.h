// How many rows stand before each page, kept so that the page of a row is found without walking over all of
// them. Portable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class PageTotals {
  public:
    void resize(size_t pages, int32_t rowsOfNew);
    void set(size_t page, int32_t rows);

    struct Place {
        ptrdiff_t page;
        int64_t offset;
    };
    // Walking from page 0 with a running total: the first page with which it exceeds `row`, or the one behind
    // the last; the offset is counted from that page's first row. A row below 0 is found on page 0.
    Place find(int64_t row) const;

  private:
    std::vector<int32_t> m_rows;
    // A Fenwick tree: entry i, counted from 1, is the sum of the pages from i - lowbit(i) to i - 1.
    std::vector<int64_t> m_sums{0};
};
