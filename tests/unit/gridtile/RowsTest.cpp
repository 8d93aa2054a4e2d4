// Rows of a grid as lists fill them; what the session of grids sees of them isn't looked at again.
#include <gtest/gtest.h>

#include "src/grid/CalledRow.h"
#include "src/grid/ListRows.h"

namespace {

// A table without rows, whose read-only cells take what programs write.
class Table : public CGXGridCore {
  public:
    explicit Table(uint32_t columns) {
        SetColCount(columns);
        GetParam()->SetLockReadOnly(false);
    }
};

// Ends the list, as wex_end_list does: the spare row goes.
void listed(Table& table, CStringArray& lines, int keyColumn = -1) {
    addListRows(table, lines, {false, keyColumn, [](uint32_t) -> uint8_t { return 0; }, rowCellStyle(0)});
    table.SetRowCount(table.GetRowCount() - 1);
}

TEST(ListRowsTest, WithoutASpareRowTheFirstLineLandsOnTheHeaders) {
    Table table(1);
    CStringArray lines{L"a", L"b"};
    listed(table, lines);
    EXPECT_EQ(table.GetRowCount(), 1u);
    EXPECT_EQ(table.GetValueRowCol(0, 0), L"a");
    EXPECT_EQ(table.GetValueRowCol(1, 1), L"b");
}

TEST(ListRowsTest, ContinuationLinesFoldAndMakeTheRowHigher) {
    const struct {
        CStringArray lines;
        int keyColumn;
        CStringArray left;
        std::vector<int> heights;
    } cases[] = {
        {{L"AB\tCD", L"\tEF"}, 0, {L"CD\nEF\t"}, {30}},
        {{L"A\tCD", L"\tEF"}, 0, {L"A\tCD", L"\tEF"}, {16, 16}},
        {{L"AB\tCD", L"\tEF", L"\tGH"}, 0, {L""}, {44}},
        {{L"AB\tCD", L"\tEF"}, -1, {L"AB\tCD", L"\tEF"}, {16, 16}},
        {{L"no tab", L"\tEF"}, 0, {L"no tab", L"\tEF"}, {16, 16}},
        {{L"AB\tCD", L"", L"\tEF"}, 0, {L"AB\tCD", L"", L"\tEF"}, {16, 16, 16}},
        {{L"ab\tKEY\tgh", L"xx\t\tyy", L"cd\tKEY\tij"}, 1, {L"ab\nxx\tgh\nyy\t", L"cd\tKEY\tij"}, {30, 16}},
    };
    for (const auto& wanted : cases) {
        Table table(2);
        table.SetRowCount(1);
        CStringArray lines = wanted.lines;
        listed(table, lines, wanted.keyColumn);
        EXPECT_EQ(lines, wanted.left);
        std::vector<int> heights;
        for (uint32_t row = 1; row <= table.GetRowCount(); ++row) heights.push_back(table.GetRowHeight(row));
        EXPECT_EQ(heights, wanted.heights);
    }
}

// Would take hours if each line that is folded copied those before it.
TEST(ListRowsTest, AHundredThousandLinesFoldIntoOne) {
    Table table(2);
    table.SetRowCount(1);
    CStringArray lines(100'001, L"more\t\tlines");
    lines[0] = L"first\tKEY\tlast";
    listed(table, lines, 1);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].starts_with(L"first\nmore\nmore"));
    EXPECT_EQ(table.GetRowHeight(1), TrackSizes::LARGEST);
}

}  // namespace
