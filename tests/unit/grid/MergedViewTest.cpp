// Merged cells of a whole view, against those found cell by cell.
#include "src/platform/gridlib/MergedView.h"

#include <gtest/gtest.h>

#include <random>

// Few texts and many merge bits, so that runs of all shapes come about, also below and beside the view.
TEST(MergedViewTest, AgreesWithEachCellAskedAlone) {
    std::mt19937 random(11);
    const auto below = [&](uint32_t limit) { return static_cast<uint32_t>(random() % limit); };
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        GridTable table;
        const uint32_t rows = 1 + below(12), cols = 1 + below(8);
        table.setRowCount(rows);
        table.setColCount(cols);
        table.setMerging(round % 10 > 0);
        for (uint32_t row = 0; row <= rows; ++row)
            for (uint32_t col = 0; col <= cols; ++col) {
                const wchar_t* text = below(6) ? L"same" : below(2) ? L"other" : L"";
                const auto bits = static_cast<uint8_t>(below(4) ? 3 : below(4));
                table.apply(CGXRange(row, col),
                            CGXStyle().SetValue(std::wstring_view(text)).SetMergeCell(bits));
            }
        const CellPlace first{1 + below(rows), 1 + below(cols)};
        const CellPlace last{first.row - 1 + below(rows - first.row + 2),
                             first.col - 1 + below(cols - first.col + 2)};
        const MergedView view(table, first, last);
        for (uint32_t row = 0; row <= last.row; row = row ? row + 1 : first.row)
            for (uint32_t col = 0; col <= last.col; col = col ? col + 1 : first.col) {
                const CGXRange within(row ? first.row : 0, 0, row ? last.row : 0, last.col);
                ASSERT_EQ(view.block(view.blockAt(row, col)), table.merged(row, col, within))
                    << row << ' ' << col;
            }
    }
}
