// Column texts and row texts.
#include <gtest/gtest.h>

#include "src/listctrl/ColumnText.h"
#include "src/listctrl/RowText.h"

namespace {

// Each letter takes 7 pixels. Title and width of each column, one after the other.
std::wstring columns(std::wstring_view text) {
    std::wstring told;
    const auto widthOf = [](const CString& title) { return static_cast<int>(7 * title.size()); };
    for (const ListColumn& column : columnsFromText(text, widthOf))
        told += L"[" + column.title + L"]" + std::to_wstring(column.width);
    return told;
}

TEST(ColumnText, TheFirstFieldMakesNoColumn) {
    EXPECT_EQ(columns(L"x\tName\tSize"), L"[Name]52[Size]52");
    EXPECT_EQ(columns(L"\tName"), L"[Name]52");
    EXPECT_EQ(columns(L"Name"), L"");
    EXPECT_EQ(columns(L""), L"");
}

TEST(ColumnText, TabsAtTheEndMakeNoColumnsUnlessATabIsAll) {
    EXPECT_EQ(columns(L"\tName\t\t\t"), L"[Name]52");
    EXPECT_EQ(columns(L"Name\t"), L"");
    EXPECT_EQ(columns(L"\t"), L"[]10");
    EXPECT_EQ(columns(L"\t\t"), L"");
    EXPECT_EQ(columns(L"\t\tName"), L"[]10[Name]52");
}

TEST(ColumnText, BlanksAtTheEndWidenTheColumn) {
    EXPECT_EQ(columns(L"\tName   \tA B "), L"[Name]70[A B]47") << "3 * 7 * 1.5 is 31.5";
    EXPECT_EQ(columns(L"\t  "), L"[]22");
    EXPECT_EQ(columns(L"\tName \t"), L"[Name]58");
    EXPECT_EQ(columns(L"\tName\t \t"), L"[Name]52[]16") << "a blank is no tab";
}

CStringArray cellsOf(RowCells& row) {
    CStringArray cells;
    while (const wchar_t* cell = row.next()) cells.emplace_back(cell);
    return cells;
}

TEST(RowText, EachTabEndsACellAndAWaitingRowWithTabsLosesTheBlanksAtTheirEnds) {
    RowCells row;
    const auto live = [&](std::wstring_view text) { return row.read(text), cellsOf(row); };
    const auto waiting = [&](std::wstring_view text) { return row.readWaiting(text), cellsOf(row); };
    EXPECT_EQ(live(L" a \tb \t"), (CStringArray{L" a ", L"b ", L""}));
    EXPECT_EQ(live(L""), CStringArray{L""});
    EXPECT_EQ(waiting(L" a \tb  \t "), (CStringArray{L" a", L"b", L""}));
    EXPECT_EQ(waiting(L"a  "), CStringArray{L"a  "});
    row.readWaiting(L"not \tread");
    EXPECT_EQ(live(L"c \td"), (CStringArray{L"c ", L"d"}));
    EXPECT_EQ(row.next(), nullptr);
}

}  // namespace
