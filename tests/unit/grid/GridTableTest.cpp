// What a table keeps, refuses, forgets, merges and takes back.
#include "src/platform/gridlib/GridTable.h"

#include <gtest/gtest.h>

namespace {

using Places = std::vector<CellPlace>;

GridTable tableOf(uint32_t rows, uint32_t cols) {
    GridTable table;
    table.setRowCount(rows);
    table.setColCount(cols);
    table.setMerging(true);
    return table;
}

CGXStyle value(const wchar_t* text) { return CGXStyle().SetValue(std::wstring_view(text)); }
CGXStyle merging(const wchar_t* text, uint8_t bits) { return value(text).SetMergeCell(bits); }

TEST(GridTableTest, StylesMergeAttributeByAttribute) {
    GridTable table = tableOf(3, 3);
    table.apply(CGXRange(1, 1), value(L"text").SetInterior(0xFF));
    table.apply(CGXRange(1, 1), CGXStyle().SetTextColor(0).SetInterior(0xAA));
    EXPECT_EQ(table.value(1, 1), L"text");
    EXPECT_EQ(table.ownStyle(1, 1).look().interior, 0xAAu);
    EXPECT_EQ(table.ownStyle(1, 1).look().textColor, 0u);

    table.apply(CGXRange::ofTable(), CGXStyle().SetHorizontalAlignment(ALIGN_RIGHT).SetWrapText(true));
    table.apply(CGXRange::ofColumns(1, 1), CGXStyle().SetHorizontalAlignment(ALIGN_CENTER).SetInterior(1));
    table.apply(CGXRange::ofRows(1, 1), value(L"row").SetTextColor(7));
    EXPECT_EQ(table.style(1, 1).look().horizontal, ALIGN_CENTER);
    EXPECT_EQ(table.style(1, 1).look().interior, 0xAAu);
    EXPECT_EQ(table.style(1, 1).look().textColor, 0u);
    EXPECT_EQ(table.style(2, 2).look().horizontal, ALIGN_RIGHT);
    EXPECT_EQ(table.value(1, 1), L"text");
    EXPECT_EQ(table.value(1, 2), L"row");
    EXPECT_TRUE(table.ownStyle(1, 2).isEmpty()) << "what is inherited isn't the cell's own";
    EXPECT_EQ(table.style(0, 2).look().control, CONTROL_HEADER);
    EXPECT_FALSE(table.style(2, 2).look().control);
}

TEST(GridTableTest, WhatLiesOutsideIsNeitherWrittenNorKept) {
    GridTable table = tableOf(300, 3);
    table.apply(CGXRange(301, 1), value(L"x"));
    table.apply(CGXRange(299, 2, 400, 9), value(L"in"));
    table.setRowCount(400);
    table.setColCount(5);
    EXPECT_EQ(table.value(301, 1), L"");
    EXPECT_EQ(table.value(300, 3), L"in");
    EXPECT_EQ(table.value(300, 4), L"");
    EXPECT_EQ(table.value(500, 0), L"");

    table.apply(CGXRange::ofRows(300, 300), CGXStyle().SetInterior(1));
    table.setRowCount(299);
    table.setColCount(2);
    table.setRowCount(300);
    table.setColCount(3);
    EXPECT_EQ(table.value(299, 2), L"in");
    EXPECT_EQ(table.value(299, 3), L"");
    EXPECT_EQ(table.value(300, 2), L"");
    EXPECT_TRUE(table.style(300, 2).isEmpty());
}

TEST(GridTableTest, ReadOnlyCellsRefuseProgramsUnderTheLockOnly) {
    GridTable table = tableOf(3, 3);
    const CGXStyle reading = value(L"kept").SetReadOnly(true);
    EXPECT_TRUE(table.apply(CGXRange(1, 1), reading));
    EXPECT_FALSE(table.apply(CGXRange(1, 1), value(L"new").SetReadOnly(false)));
    EXPECT_TRUE(table.apply(CGXRange(1, 1, 1, 2), value(L"new")));
    table.clear(CGXRange::ofTable(), true);
    EXPECT_EQ(table.value(1, 1), L"kept");
    EXPECT_EQ(table.value(1, 2), L"");

    table.param().SetLockReadOnly(false);
    EXPECT_TRUE(table.apply(CGXRange(1, 1), value(L"new")));
    EXPECT_EQ(table.value(1, 1), L"new");
    table.clear(CGXRange(1, 1), false);
    EXPECT_EQ(table.value(1, 1), L"");
    EXPECT_TRUE(table.ownStyle(1, 1).look().readOnly) << "only the value is taken";
    table.clear(CGXRange(1, 1), true);
    EXPECT_TRUE(table.ownStyle(1, 1).isEmpty());
}

TEST(GridTableTest, EqualNeighboursReadAsOneWhereBothMerge) {
    GridTable table = tableOf(4, 3);
    const uint8_t both = MERGE_ALONG_ROW | MERGE_DOWN_COLUMN;
    table.apply(CGXRange(1, 0, 1, 2), merging(L"wide", MERGE_ALONG_ROW));
    table.apply(CGXRange(1, 3), merging(L"wide", MERGE_NOT));
    table.apply(CGXRange(2, 0, 4, 1), merging(L"block", both));
    table.apply(CGXRange(4, 1), merging(L"other", both));
    table.apply(CGXRange(2, 2, 3, 2), merging(L"", both));
    EXPECT_EQ(table.merged(1, 1), CGXRange(1, 0, 1, 2));
    EXPECT_EQ(table.merged(1, 3), CGXRange(1, 3));
    EXPECT_EQ(table.merged(3, 1), CGXRange(2, 0, 3, 1)) << "row 4 is narrower, so it stands alone";
    EXPECT_EQ(table.merged(4, 0), CGXRange(4, 0));
    EXPECT_EQ(table.merged(2, 2), CGXRange(2, 2)) << "empty cells stay apart";
    EXPECT_EQ(table.merged(3, 1, CGXRange(3, 0, 4, 3)), CGXRange(3, 0, 3, 1)) << "no further than asked";
    table.setMerging(false);
    EXPECT_EQ(table.merged(1, 1), CGXRange(1, 1));
}

TEST(GridTableTest, HeadersMergeWithNoData) {
    GridTable table = tableOf(3, 2);
    table.apply(CGXRange(0, 0, 3, 2), merging(L"same", MERGE_ALONG_ROW | MERGE_DOWN_COLUMN));
    EXPECT_EQ(table.merged(0, 1), CGXRange(0, 0, 0, 2));
    EXPECT_EQ(table.merged(1, 1), CGXRange(1, 0, 3, 2));
}

TEST(GridTableTest, PersonsStepIsUndoneAsOneAndNeverUndoesAProgram) {
    GridTable table = tableOf(3, 2);
    table.apply(CGXRange(1, 2), CGXStyle().SetReadOnly(true));
    Places refused;
    EXPECT_EQ(
        table.enter({{{1, 1}, {L"a"}}, {{1, 2}, {L"b"}}, {{2, 1}, {L"c"}}, {{3, 1}, {L""}}, {{9, 9}, {L"d"}}},
                    refused),
        (Places{{1, 1}, {2, 1}}));
    EXPECT_EQ(refused, (Places{{1, 2}, {9, 9}}));

    table.apply(CGXRange(2, 1), value(L"program"));
    EXPECT_EQ(table.undo(), (Places{{1, 1}}));
    EXPECT_EQ(table.value(1, 1), L"");
    EXPECT_EQ(table.value(2, 1), L"program");
    EXPECT_EQ(table.undo(), Places()) << "no more steps";
    EXPECT_EQ(table.redo(), (Places{{1, 1}}));
    EXPECT_EQ(table.value(1, 1), L"a");
    table.undo();
    table.enter({{{3, 1}, {L"new"}}}, refused);
    EXPECT_EQ(table.redo(), Places()) << "a new step ends what could be done again";

    table.param().EnableUndo(false);
    table.enter({{{3, 2}, {L"unrecorded"}}}, refused);
    EXPECT_EQ(table.undo(), Places());
    table.param().EnableUndo(true);
    EXPECT_EQ(table.undo(), (Places{{3, 1}}));
    EXPECT_EQ(table.value(3, 2), L"unrecorded");
}

}  // namespace
