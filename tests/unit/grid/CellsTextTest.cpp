// What goes to the clipboard and comes from it, and how values are shown and taken.
#include "src/platform/gridlib/CellsText.h"

#include <gtest/gtest.h>

#include "src/platform/gridlib/PastedCells.h"

#include "src/platform/gridlib/CellKind.h"
#include "src/platform/gridlib/NumberFormat.h"

namespace {

TEST(CellsTextTest, GivesWhatOtherProgramsTake) {
    EXPECT_EQ(cellsAsTabs({{L"5\" pipe", L"b"}}), L"5\" pipe\tb\r\n") << "plain to editors where it can be";
}

TEST(CellsTextTest, TakesWhatOtherProgramsGive) {
    EXPECT_EQ(cellsFromTabs(L"a\tb\nc\td"), (CellRows{{L"a", L"b"}, {L"c", L"d"}}));
    EXPECT_EQ(cellsFromTabs(L"a\r\rb\r\n"), (CellRows{{L"a"}, {L""}, {L"b"}}));
    EXPECT_EQ(cellsFromTabs(L"\"open\tb"), (CellRows{{L"\"open", L"b"}}));
    EXPECT_EQ(cellsFromTabs(L"\"a\"b\tc"), (CellRows{{L"\"a\"b", L"c"}}));
    EXPECT_EQ(cellsFromTabs(L"a\t"), (CellRows{{L"a", L""}}));
    EXPECT_EQ(cellsFromTabs(L""), CellRows());
    EXPECT_EQ(cellsFromTabs(std::wstring_view(L"a\0b", 3)), (CellRows{{L"a"}}));
}

TEST(CellsTextTest, HtmlHasTheOffsetsThatItsHeadingTells) {
    const std::string html = cellsAsHtml({{L"<\x4E2D&\x00E4>", L"a\nb"}});
    const auto offset = [&](const std::string& name) {
        return std::stoul(html.substr(html.find(name) + name.size()));
    };
    const size_t from = offset("\nStartFragment:"), to = offset("\nEndFragment:");
    EXPECT_EQ(html.substr(from, to - from),
              "<table><tr><td>&lt;\xE4\xB8\xAD&amp;\xC3\xA4&gt;</td><td>a<br>b</td></tr>\r\n</table>");
    EXPECT_EQ(html.substr(offset("\nStartHTML:"), 6), "<html>");
    EXPECT_EQ(offset("\nEndHTML:"), html.size());
}

TEST(NumberFormatTest, ShowsPlacesAndKeepsTheValue) {
    CGXStyle style = CGXStyle().SetValue(1.5).SetFormat(FORMAT_PLACES).SetPlaces(2);
    EXPECT_EQ(style.GetValue(), L"1.5");
    EXPECT_EQ(shownText(style), L"1.50");
    EXPECT_EQ(shownText(style.SetPlaces(-1)), L"1.5");
    EXPECT_EQ(shownText(style.SetPlaces(52513)), L"1.500000000000000");
    EXPECT_EQ(shownText(style.SetPlaces(2).SetValue(L"n/a")), L"n/a");
    EXPECT_EQ(shownText(style.SetValue(-0.001)), L"0.00");
    EXPECT_EQ(shownText(style.SetValue(1e300)), L"1e+300");
    EXPECT_EQ(CGXStyle().SetValue(0.1 + 0.2).GetValue(), L"0.30000000000000004");
    EXPECT_EQ(CGXStyle().SetValue(-32768).GetValue(), L"-32768");
    for (const wchar_t* no : {L"", L"1,5", L"1 2", L"nan", L"inf", L"0x10", L"+-1"})
        EXPECT_FALSE(numberOf(no)) << no;
    EXPECT_EQ(numberOf(L" +2.5e1 "), 25.0);
}

struct Taken {
    const char* what;
    CGXStyle style;
    std::vector<const wchar_t*> yes, no;
};

TEST(CellKindTest, TakesWhatItsTypeAllows) {
    const auto of = [](uint16_t control) { return CGXStyle().SetControl(control); };
    const Taken table[] = {
        {"text", of(CONTROL_EDIT), {L"", L"a\nb"}, {}},
        {"no style at all", CGXStyle(), {L"x"}, {}},
        {"read-only text", of(CONTROL_EDIT).SetReadOnly(true), {}, {L"x", L""}},
        {"number", of(CONTROL_EDIT).SetFormat(FORMAT_PLACES).SetPlaces(2), {L"", L"-1e3"}, {L"one"}},
        {"choices", of(52500).SetChoiceList(L"Red\r\nBlue\n"), {L"", L"Red", L"Blue"}, {L"red", L"Green"}},
        {"unknown type without choices", of(52999), {L"x"}, {}},
        {"check", of(CONTROL_CHECK), {L"0", L"1"}, {L"", L"yes"}},
        {"check with texts", of(CONTROL_CHECK).SetChoiceList(L"no\nyes"), {L"no", L"yes"}, {L"1", L""}},
        {"static", of(CONTROL_STATIC), {}, {L"x"}},
        {"face", of(CONTROL_FACE), {}, {L"x"}},
        {"pushed face", of(CONTROL_FACE_PUSH), {}, {L"x"}},
        {"header", of(CONTROL_HEADER), {}, {L"x"}},
    };
    for (const Taken& row : table) {
        for (const wchar_t* text : row.yes) EXPECT_TRUE(accepts(row.style, text)) << row.what << ": " << text;
        for (const wchar_t* text : row.no) EXPECT_FALSE(accepts(row.style, text)) << row.what << ": " << text;
    }
}

TEST(PastedCellsTest, FillTheSelectionOrGoOnFromItsCornerUnlessTheyAreTooMany) {
    GridTable table;
    table.setRowCount(4);
    table.setColCount(3);
    const CGXRange selected(2, 2, 4, 3);
    EXPECT_EQ(pastedCells(table, selected, {{L"x"}}, 6).entries.size(), 6u);
    const PastedCells cells = pastedCells(table, selected, {{L"a", L"b", L"c"}, {L"d"}}, 6);
    EXPECT_EQ(cells.entries.size(), 3u);
    EXPECT_EQ(cells.entries.back().at, (CellPlace{3, 2}));
    EXPECT_EQ(cells.outside, 1u);
    EXPECT_TRUE(pastedCells(table, selected, {{L"x"}}, 5).tooMany);
    const PastedCells refused = pastedCells(table, selected, {{L"a", L"b"}, {L"c", L"d"}}, 3);
    EXPECT_TRUE(refused.tooMany && refused.entries.empty());
}

}  // namespace
