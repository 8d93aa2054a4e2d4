// Column texts, row texts, and the arguments that fill a list control.
#include <gtest/gtest.h>

#include <list>

#include "src/listctrl/ColumnText.h"
#include "src/listctrl/ItemCall.h"
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

CStringArray liveCells(std::wstring_view text) {
    RowCells row;
    row.read(text);
    return cellsOf(row);
}

CStringArray waitingCells(std::wstring_view text) {
    RowCells row;
    row.readWaiting(text);
    return cellsOf(row);
}

TEST(RowText, ATabAtTheEndMakesAnEmptyCell) {
    EXPECT_EQ(liveCells(L"a\tb\t"), (CStringArray{L"a", L"b", L""}));
    EXPECT_EQ(liveCells(L" a \tb "), (CStringArray{L" a ", L"b "}));
    EXPECT_EQ(liveCells(L""), CStringArray{L""});
    EXPECT_EQ(liveCells(L"\t"), (CStringArray{L"", L""}));
}

TEST(RowText, AWaitingRowLosesBlanksOnlyWhereItHasTabs) {
    EXPECT_EQ(waitingCells(L" a \tb  \t "), (CStringArray{L" a", L"b", L""}));
    EXPECT_EQ(waitingCells(L"a  "), CStringArray{L"a  "});
}

TEST(RowText, OneReaderReadsRowAfterRow) {
    RowCells row;
    row.readWaiting(L"a \tb");
    row.next();
    row.read(L"c \td");
    EXPECT_EQ(cellsOf(row), (CStringArray{L"c ", L"d"}));
    EXPECT_EQ(row.next(), nullptr);
}

// A chain of arguments: integers, texts, and nil for anything else.
struct Arguments {
    std::list<CString> texts;
    std::list<HostValue> nodes;

    HostValue& node(HostValueType type) {
        HostValue& added = nodes.emplace_back(HostValue{nullptr, type, {}});
        if (nodes.size() > 1) std::prev(nodes.end(), 2)->next = &added;
        return added;
    }
    Arguments& operator<<(int number) {
        node(HV_SHORT).value.shortValue = static_cast<int16_t>(number);
        return *this;
    }
    Arguments& operator<<(const wchar_t* text) {
        node(HV_STRING).value.stringValue = texts.emplace_back(text).data();
        return *this;
    }
    Arguments& operator<<(std::nullptr_t) {
        node(HV_NIL);
        return *this;
    }

    // What is done in a list of three rows.
    std::wstring effect() const {
        const auto call = itemCallFrom(nodes.empty() ? nullptr : &nodes.front());
        if (!call) return L"nil";
        if (!call->setsCell(3)) return L"add " + call->text;
        return L"set " + std::to_wstring(call->row) + L" " + std::to_wstring(call->column) + L" " +
               call->text;
    }
};

TEST(ItemCall, RowAndColumnComeBeforeTheText) {
    EXPECT_EQ((Arguments() << L"a\tb").effect(), L"add a\tb");
    EXPECT_EQ((Arguments() << 1 << 2 << L"a\tb").effect(), L"set 1 2 a\tb");
    EXPECT_EQ((Arguments() << 3 << 2 << L"a").effect(), L"add a");
    EXPECT_EQ((Arguments() << -1 << 0 << L"a").effect(), L"add a");
    EXPECT_EQ((Arguments() << -5 << 0 << L"a").effect(), L"set -5 0 a") << "the list passes it over";
    EXPECT_EQ((Arguments() << 1 << L"a").effect(), L"set 1 -1 a") << "the list passes it over";
    EXPECT_EQ((Arguments() << L"a" << 1 << 2).effect(), L"add a");
}

TEST(ItemCall, AnythingElseInTheTextsPlaceIsAnEmptyText) {
    EXPECT_EQ((Arguments() << 1 << 2 << nullptr).effect(), L"set 1 2 ");
    EXPECT_EQ((Arguments() << 1 << 2 << 5).effect(), L"set 1 2 ");
    EXPECT_EQ((Arguments() << 7 << nullptr).effect(), L"add ");
    EXPECT_EQ((Arguments() << nullptr).effect(), L"add ");
    EXPECT_EQ(Arguments().effect(), L"nil");
    EXPECT_EQ((Arguments() << 1).effect(), L"nil");
    EXPECT_EQ((Arguments() << 1 << 2).effect(), L"nil");
}

}  // namespace
