#include "src/grid/ListRows.h"

#include <algorithm>

#include "src/grid/LineFolding.h"

namespace {

// Pixels at 96 dots per inch.
constexpr int ROW_HEIGHT = 16;
constexpr int CONTINUATION_HEIGHT = 14;

struct ListRow {
    std::wstring_view text;
    int height;
    bool merges;
};

// Where the table can't grow any more, the lines land on its last row.
void addListRow(CGXGridCore& grid, const ListRow& line, const ListRowOptions& options) {
    const uint32_t row = grid.GetRowCount();
    grid.SetRowCount(row + 1, 2);
    RowCellWriter cells(grid, options.style, row);
    std::wstring_view rest = line.text;
    const std::wstring_view first = trimmedField(takeField(rest));
    const bool hasFields = hasTab(line.text);
    uint32_t column = 1;
    if (hasFields && hasTab(rest)) {
        cells.write(0, first, MERGE_NOT, options.alignmentOf(0));
    } else {
        // One field fills the row. So does the first of two, but for the last column.
        cells.fill(line.text.empty() ? L" " : first, MERGE_ALONG_ROW, ALIGN_LEFT);
        if (hasFields) column = grid.GetColCount();
    }
    grid.SetRowHeight(row, row, line.height, nullptr, 2, 0);
    const uint8_t merge = line.merges ? MERGE_ALONG_ROW : MERGE_NOT;
    for (; !rest.empty(); ++column)
        if (const auto field = trimmedField(takeField(rest)); !field.empty())
            cells.write(column, field, merge, options.alignmentOf(column));
}

}  // namespace

void addListRows(CGXGridCore& grid, CStringArray& lines, const ListRowOptions& options) {
    size_t kept = 0;
    for (size_t next = 0; next < lines.size();) {
        CString text = std::move(lines[next++]);
        ListRow row{{}, ROW_HEIGHT, options.merges && !isRule(text)};
        const auto isContinued = [&] {
            return next < lines.size() && isContinuation(lines[next], options.keyColumn);
        };
        // Most lines aren't, and taking one apart costs as much as writing its cells.
        if (takesContinuations(text, options.keyColumn) && isContinued()) {
            FoldedLine folded(text);
            for (; isContinued(); ++next) {
                folded.fold(lines[next]);
                row.height = std::min(row.height + CONTINUATION_HEIGHT, TrackSizes::LARGEST);
            }
            text = folded.text();
        }
        row.text = text;
        addListRow(grid, row, options);
        lines[kept++] = std::move(text);
    }
    lines.resize(kept);
}
