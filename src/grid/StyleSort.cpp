#include "src/grid/StyleSort.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

// Each row's text as a number: the smaller, the earlier the text comes. Texts are compared by the codes of
// their characters. They don't change while the rows are sorted, so they are read once.
class TextRanks {
  public:
    TextRanks(const CGXGridCore& grid, uint32_t column, int low, int high) : m_low(low) {
        const auto count = static_cast<size_t>(high - low + 1);
        CStringArray texts(count);
        for (size_t i = 0; i < count; ++i)
            texts[i] = grid.GetValueRowCol(static_cast<uint32_t>(low + static_cast<int>(i)), column);
        std::vector<uint32_t> order(count);
        std::iota(order.begin(), order.end(), 0u);
        std::sort(order.begin(), order.end(), [&](uint32_t a, uint32_t b) { return texts[a] < texts[b]; });
        m_ranks.resize(count);
        uint32_t rank = 0;
        for (size_t i = 0; i < count; ++i) {
            if (i > 0 && texts[order[i]] != texts[order[i - 1]]) ++rank;
            m_ranks[order[i]] = rank;
        }
    }
    uint32_t operator[](int row) const { return m_ranks[static_cast<size_t>(row - m_low)]; }

  private:
    int m_low;
    std::vector<uint32_t> m_ranks;
};

void exchangeStyles(CGXGridCore& grid, uint32_t column, int rowA, int rowB) {
    const auto a = static_cast<uint32_t>(rowA), b = static_cast<uint32_t>(rowB);
    CGXStyle styleOfA, styleOfB;
    grid.GetStyleRowCol(a, column, styleOfA, 2, 0);
    grid.GetStyleRowCol(b, column, styleOfB, 2, 0);
    for (uint32_t c = 0; c <= grid.GetColCount(); ++c) {
        styleOfA.SetValue(grid.GetValueRowCol(b, c));
        styleOfB.SetValue(grid.GetValueRowCol(a, c));
        grid.SetStyleRange(CGXRange(a, c), styleOfB, 0, 0, 2);
        grid.SetStyleRange(CGXRange(b, c), styleOfA, 0, 0, 2);
    }
}

}  // namespace

void sortRowsByText(CGXGridCore& grid, int column, bool ascending, int low, int high) {
    if (high == -1) high = static_cast<int>(grid.GetRowCount()) - 1;
    if (high <= low) return;
    const auto sorted = static_cast<uint32_t>(column);
    const TextRanks ranks(grid, sorted, low, high);
    const auto before = [&](int a, int b) { return ascending ? ranks[a] < ranks[b] : ranks[b] < ranks[a]; };
    // What is still to be sorted. The lower part of a range comes first, so that the exchanges keep their
    // order.
    std::vector<std::pair<int, int>> ranges{{low, high}};
    while (!ranges.empty()) {
        const auto [first, last] = ranges.back();
        ranges.pop_back();
        if (last <= first) continue;
        const int pivot = (first + last) / 2;
        int i = first, j = last;
        while (i <= j) {
            while (i < last && before(i, pivot)) ++i;
            while (j > first && before(pivot, j)) --j;
            if (i > j) break;
            if (ranks[i] != ranks[j]) exchangeStyles(grid, sorted, i, j);
            ++i;
            --j;
        }
        ranges.emplace_back(i, last);
        ranges.emplace_back(first, j);
    }
}
