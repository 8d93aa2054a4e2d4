#include "src/grid/StyleSort.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Texts = std::vector<std::vector<CString>>;

Texts textsOf(const CGXGridCore& grid) {
    Texts texts;
    for (uint32_t row = 0; row <= grid.GetRowCount(); ++row) {
        auto& cells = texts.emplace_back();
        for (uint32_t column = 0; column <= grid.GetColCount(); ++column)
            cells.push_back(grid.GetValueRowCol(row, column));
    }
    return texts;
}

std::vector<std::optional<uint32_t>> colorsOf(const CGXGridCore& grid) {
    std::vector<std::optional<uint32_t>> colors;
    for (uint32_t row = 0; row <= grid.GetRowCount(); ++row)
        for (uint32_t column = 0; column <= grid.GetColCount(); ++column) {
            CGXStyle style;
            grid.GetStyleRowCol(row, column, style, 2, 0);
            colors.push_back(style.look().interior);
        }
    return colors;
}

// The procedure itself, in its own words, with each text read where it is compared.
class PlainSort {
  public:
    PlainSort(CGXGridCore& grid, uint32_t column, bool ascending)
        : m_grid(grid), m_column(column), m_ascending(ascending) {}

    void sort(int low, int high) {
        if (high <= low) return;
        const CString pivot = text((low + high) / 2);
        int i = low, j = high;
        while (i <= j) {
            while (i < high && (m_ascending ? text(i) < pivot : text(i) > pivot)) ++i;
            while (j > low && (m_ascending ? text(j) > pivot : text(j) < pivot)) --j;
            if (i > j) break;
            if (text(i) != text(j)) exchange(static_cast<uint32_t>(i), static_cast<uint32_t>(j));
            ++i;
            --j;
        }
        if (low < j) sort(low, j);
        if (i < high) sort(i, high);
    }

  private:
    CString text(int row) const { return m_grid.GetValueRowCol(static_cast<uint32_t>(row), m_column); }
    void exchange(uint32_t i, uint32_t j) {
        CGXStyle si, sj;
        m_grid.GetStyleRowCol(i, m_column, si, 2, 0);
        m_grid.GetStyleRowCol(j, m_column, sj, 2, 0);
        for (uint32_t c = 0; c <= m_grid.GetColCount(); ++c) {
            si.SetValue(m_grid.GetValueRowCol(j, c));
            sj.SetValue(m_grid.GetValueRowCol(i, c));
            m_grid.SetStyleRange(CGXRange(i, c), sj);
            m_grid.SetStyleRange(CGXRange(j, c), si);
        }
    }

    CGXGridCore& m_grid;
    uint32_t m_column;
    bool m_ascending;
};

void fillRandomly(CGXGridCore& grid, uint32_t seed) {
    std::minstd_rand random(seed);
    grid.SetRowCount(random() % 30);
    grid.SetColCount(2);
    for (uint32_t row = 1; row <= grid.GetRowCount(); ++row)
        for (uint32_t column = 0; column <= 2; ++column) {
            CGXStyle style;
            style.SetValue(std::wstring(random() % 3, static_cast<wchar_t>(L'a' + random() % 4)));
            if (random() % 2) style.SetInterior(static_cast<uint32_t>(random() % 0xFFFFFF));
            if (random() % 8 == 0) style.SetReadOnly(true);
            grid.SetStyleRange(CGXRange(row, column), style);
        }
}

TEST(StyleSortTest, LeavesWhatThePlainProcedureLeaves) {
    for (uint32_t seed = 1; seed <= 400; ++seed) {
        CGXGridCore grid, plain;
        fillRandomly(grid, seed);
        fillRandomly(plain, seed);
        const bool ascending = seed % 2;
        sortRowsByText(grid, 1, ascending, 1, -1);
        PlainSort(plain, 1, ascending).sort(1, static_cast<int>(plain.GetRowCount()) - 1);
        ASSERT_EQ(textsOf(grid), textsOf(plain)) << seed;
        ASSERT_EQ(colorsOf(grid), colorsOf(plain)) << seed;
    }
}

}  // namespace
