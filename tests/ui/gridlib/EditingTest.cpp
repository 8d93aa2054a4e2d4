// Editing and pasting in a grid's window, as far as the sessions of grids don't come to it.
#include "tests/ui/gridlib/Support.h"

#include "src/platform/gridlib/GridClipboard.h"

namespace {

constexpr uint16_t SOME_CHOICE_TYPE = 52500;

class EditingTest : public GridTest {
  protected:
    EditingTest() {
        grid.SetRowCount(6);
        grid.SetColCount(3);
        grid.SetStyleRange(CGXRange(2, 1), CGXStyle().SetValue(L"fixed").SetReadOnly(true));
        grid.SetStyleRange(
            CGXRange(3, 1),
            CGXStyle().SetControl(SOME_CHOICE_TYPE).SetChoiceList(L"Red\nGreen\nBlue").SetValue(L"Red"));
        grid.SetStyleRange(CGXRange(4, 1), CGXStyle().SetControl(CONTROL_CHECK).SetValue(L"0"));
        grid.SetStyleRange(CGXRange(5, 1), CGXStyle().SetControl(CONTROL_EDIT).SetWrapText(true));
        grid.SetStyleRange(CGXRange(6, 1), CGXStyle().SetValue(1.5).SetFormat(3).SetPlaces(2));
        pump();
    }

    void go(uint32_t row, uint32_t col) { grid.SetCurrentCell(row, col); }
};

TEST_F(EditingTest, EscapeGivesTheFormerTextBackAndTellsIt) {
    grid.SetValueRange(CGXRange(1, 1), L"former");
    doubleClick(1, 1);
    EXPECT_GE(static_cast<short>(LOWORD(::SendMessageW(GetFocus(), EM_POSFROMCHAR, 0, 0))), 0)
        << "it begins in view";
    grid.events.clear();
    type(L"x");
    key(VK_ESCAPE);
    EXPECT_EQ(grid.takeEvents(), (Events{L"modify 1 1 x", L"modify 1 1 former"}));
    EXPECT_FALSE(look(1, 1).isEdited);
}

TEST_F(EditingTest, ATextThatIsNoNumberIsRefused) {
    go(6, 1);
    EXPECT_STREQ(look(6, 1).text, L"1.50");
    type(L"no");
    grid.events.clear();
    key(VK_RETURN);
    EXPECT_EQ(grid.GetValueRowCol(6, 1), L"1.5");
    EXPECT_EQ(grid.takeEvents()[0], L"modify 6 1 1.5") << "who heard of the refused text hears of the former";
}

TEST_F(EditingTest, WrappedTextHasLinesAndLeavesWithTheFocus) {
    go(5, 1);
    type(L"one");
    key(VK_RETURN, {VK_CONTROL});
    type(L"\ntwo");
    parent.SetFocus();
    EXPECT_EQ(grid.GetValueRowCol(5, 1), L"one\ntwo");
    EXPECT_FALSE(look(5, 1).isEdited);
}

TEST_F(EditingTest, ProgramMayChangeTheOpenCell) {
    go(1, 1);
    type(L"typed");
    grid.events.clear();
    grid.SetValueRange(CGXRange(1, 1), L"program");
    EXPECT_STREQ(look(1, 1).text, L"program");
    EXPECT_TRUE(look(1, 1).isEdited);
    grid.SetRowCount(0);
    EXPECT_EQ(grid.GetValueRowCol(1, 1), L"");
    pump();
    EXPECT_EQ(grid.takeEvents(), Events()) << "a program knows what it does";
}

TEST_F(EditingTest, OpenEditorStaysOnItsCellWhenAProgramChangesSizes) {
    go(3, 2);
    type(L"open");
    const auto edges = [&] {
        RECT window;
        GetWindowRect(GetFocus(), &window);
        MapWindowPoints(nullptr, grid.m_hWnd, reinterpret_cast<POINT*>(&window), 2);
        return PixelRect{window.left, window.top, window.right + 1, window.bottom + 1};
    };
    const auto change = [&](auto size) {
        const PixelRect before = edges();
        size();
        pump();
        EXPECT_NE(edges(), before);
        EXPECT_EQ(edges(), look(3, 2).rect);
    };
    change([&] { grid.SetRowHeight(0, 2, 30); });
    change([&] { grid.SetColWidth(1, 1, 130); });
    change([&] { grid.SetColWidth(2, 2, 40); });
    grid.events.clear();
    grid.SetRowHeight(1, 1, 2000);
    pump();
    EXPECT_FALSE(look(3, 2).isEdited) << "nobody would see what is typed";
    EXPECT_EQ(grid.GetValueRowCol(3, 2), L"open");
}

TEST_F(EditingTest, DeleteGoesInTheOrderOfTheCells) {
    grid.SetValueRange(CGXRange(1, 2, 6, 3), L"x");
    press(5, 2);
    press(1, 3, MK_CONTROL);
    grid.events.clear();
    key(VK_DELETE);
    EXPECT_EQ(grid.takeEvents(), (Events{L"modify 1 3 ", L"modify 5 2 "}));
}

TEST_F(EditingTest, AltGrWritesAndCommandsNothing) {
    grid.SetValueRange(CGXRange(1, 2), L"x");
    go(1, 2);
    for (const WPARAM command : {'A', 'X', 'Z', 'V'}) key(command, {VK_CONTROL, VK_MENU});
    EXPECT_EQ(grid.takeEvents(), Events());
    type(L"\u0105");
    key('A', {VK_CONTROL, VK_MENU});
    type(L"b");
    EXPECT_EQ(grid.GetValueRowCol(1, 2), L"\u0105b") << "nothing was selected to be typed over";
}

TEST_F(EditingTest, TooManyCellsAreLeftAloneAndItIsSaid) {
    grid.SetRowCount(3'000'000);
    putOnClipboard(parent.m_hWnd, {{L"x"}});
    go(1, 2);
    key('A', {VK_CONTROL});
    grid.events.clear();
    for (const WPARAM command : {'V', 'C', 'X'}) key(command, {VK_CONTROL});
    key(VK_DELETE);
    EXPECT_EQ(grid.takeEvents(), Events(4, L"too many"));
    EXPECT_EQ(cellsOnClipboard(parent.m_hWnd), CellRows(1, CStringArray(1, L"x")));
}

TEST_F(EditingTest, PasteIsCheckedCellByCellAndTold) {
    putOnClipboard(parent.m_hWnd, {{L"a", L"b"}, {L"c", L"d"}, {L"Pink", L"e"}, {L"1", L"f"}});
    go(1, 1);
    key('V', {VK_CONTROL});
    EXPECT_EQ(grid.takeEvents(), (Events{L"pasted 6 2 0", L"modify 1 1 a", L"modify 1 2 b", L"modify 2 2 d",
                                         L"modify 3 2 e", L"modify 4 1 1", L"modify 4 2 f"}));
    go(6, 3);
    putOnClipboard(parent.m_hWnd, {{L"in", L"out"}, {L"out", L"out"}});
    key('V', {VK_CONTROL});
    EXPECT_EQ(grid.takeEvents()[0], L"pasted 1 0 3");
}

}  // namespace
