#include "src/grid/CalledRow.h"

namespace {

constexpr int NEW_ROW = -1;
constexpr int ROW_HEIGHT = 16;  // pixels at 96 dots per inch

}  // namespace

int buildGridRow(CGXGridCore& grid, std::wstring_view text, int row, bool merges, int verticalCode,
                 const CGXStyle& style) {
    const bool fillsRow = !hasTab(text);
    const bool mergesAlong = fillsRow || (merges && !isRule(text));
    // kept: the first column merges down from code 0 on, the others from 1 on
    const auto bits = [=](int leastCode) -> uint8_t {
        return (mergesAlong ? MERGE_ALONG_ROW : 0) | (verticalCode >= leastCode ? MERGE_DOWN_COLUMN : 0);
    };
    if (row == NEW_ROW) {
        grid.SetRowCount(grid.GetRowCount() + 1, 2);
        row = static_cast<int>(grid.GetRowCount());
    }
    RowCellWriter cells(grid, style, static_cast<uint32_t>(row));
    if (fillsRow) {
        cells.fill(text.empty() ? L" " : text, bits(0));
    } else {
        cells.write(0, takeField(text), bits(0));
        for (uint32_t column = 1; !text.empty(); ++column)
            if (const auto field = takeField(text); !field.empty()) cells.write(column, field, bits(1));
    }
    const auto at = static_cast<uint32_t>(row);
    grid.SetRowHeight(at, at, ROW_HEIGHT, nullptr, 2, 0);
    return row;
}
