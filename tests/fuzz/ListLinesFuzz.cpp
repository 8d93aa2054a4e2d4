// Lines of a list that fill a grid, behind a byte that gives the key column: each line has a row or is folded
// into one, and no cell holds a tab.
#include "src/grid/LineFolding.h"
#include "src/grid/ListRows.h"
#include "tests/fuzz/Fuzz.h"

namespace {

CStringArray linesOf(std::wstring_view text) {
    CStringArray lines;
    while (!text.empty()) {
        const size_t end = std::min(text.find(L'\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1 || size > 2000) return 0;
    const int keyColumn = data[0] % 8 - 2;
    CStringArray lines = linesOf(textWithTabs(data + 1, size - 1));
    const size_t given = lines.size();
    CGXGridCore grid;
    grid.GetParam()->SetLockReadOnly(false);
    grid.SetColCount(data[0] / 8 % 4);
    grid.SetRowCount(1);
    addListRows(grid, lines, {true, keyColumn, [](uint32_t) -> uint8_t { return 0; }, rowCellStyle(0)});
    require(grid.GetRowCount() == lines.size() + 1);
    require(lines.size() <= given && (keyColumn >= 0 || lines.size() == given));
    int64_t height = 0;
    for (uint32_t row = 1; row <= lines.size(); ++row) {
        height += grid.GetRowHeight(row);
        for (uint32_t column = 0; column <= grid.GetColCount(); ++column)
            require(grid.GetValueRowCol(row, column).find(L'\t') == CString::npos);
    }
    require(height == static_cast<int64_t>(16 * lines.size() + 14 * (given - lines.size())));
    return 0;
}
