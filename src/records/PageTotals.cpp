#include "src/records/PageTotals.h"

#include <bit>

namespace {

constexpr size_t lowBit(size_t i) { return i & (~i + 1); }

}  // namespace

void PageTotals::resize(size_t pages, int32_t rowsOfNew) {
    m_rows.resize(pages, rowsOfNew);
    size_t i = m_sums.size();
    m_sums.resize(pages + 1);
    // The sum of a new entry is its own page and the entries that cover the rest of its range.
    for (; i <= pages; ++i) {
        m_sums[i] = m_rows[i - 1];
        for (size_t part = i - 1; part > i - lowBit(i); part -= lowBit(part)) m_sums[i] += m_sums[part];
    }
}

void PageTotals::set(size_t page, int32_t rows) {
    const int32_t change = rows - m_rows[page];
    if (change == 0) return;
    m_rows[page] = rows;
    for (size_t i = page + 1; i < m_sums.size(); i += lowBit(i)) m_sums[i] += change;
}

PageTotals::Place PageTotals::find(int64_t row) const {
    size_t page = 0;
    for (size_t step = std::bit_floor(m_rows.size()); step > 0; step /= 2) {
        if (page + step > m_rows.size() || m_sums[page + step] > row) continue;
        page += step;
        row -= m_sums[page];
    }
    return {static_cast<ptrdiff_t>(page), row};
}
