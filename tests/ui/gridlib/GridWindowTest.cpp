// A grid's window: what is seen where, and how the mouse and the keyboard select, scroll and size.
#include "tests/support/Canvas.h"
#include "tests/ui/gridlib/Support.h"

TEST_F(GridTest, AttachesOnceAndAgainToTheSameWindow) {
    CWnd other;
    const HWND window = CreateWindowExW(0, GRID_WINDOW_CLASS, L"", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd,
                                        nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    NotingGrid second;
    EXPECT_TRUE(second.SubclassWindow(window));
    EXPECT_TRUE(second.SubclassWindow(window));
    EXPECT_FALSE(second.SubclassWindow(grid.m_hWnd));
    second.Initialize();
    ::DestroyWindow(window);
    EXPECT_FALSE(second.isLive());
    EXPECT_TRUE(second.SetRowCount(5)) << "without a window it is a table all the same";
}

TEST_F(GridTest, ScrollsAMillionRowsByKeysAndShowsWhatIsAskedFor) {
    grid.SetRowCount(1'000'000);
    grid.SetColCount(20);
    pump();
    GridTableLook table;
    ASSERT_TRUE(ask(GridQuestion::Table, &table));
    EXPECT_EQ(table.first.row, 1u);
    EXPECT_TRUE(table.hasCurrent) << "the focus has come";
    key(VK_END, {VK_CONTROL});
    pump();
    ASSERT_TRUE(ask(GridQuestion::Table, &table));
    EXPECT_EQ(table.current.row, 1'000'000u);
    EXPECT_EQ(table.current.column, 20u);
    EXPECT_GT(table.first.row, 999'900u);
    EXPECT_GT(look(1'000'000, 20).rect.width(), 0);
    EXPECT_EQ(look(1, 1).rect.width(), 0) << "out of view";

    GridPlace at{500'000, 3};
    EXPECT_TRUE(ask(GridQuestion::Show, &at));
    EXPECT_GT(look(500'000, 3).rect.height(), 0);
    const SCROLLINFO bar = scrollBar(SB_VERT);
    ASSERT_TRUE(ask(GridQuestion::Table, &table));
    EXPECT_NEAR(1.0 * bar.nPos / bar.nMax, table.first.row / 1e6, 1e-5);

    grid.SetRowCount(3);
    EXPECT_GT(look(3, 3).rect.width(), 0) << "what remains is in view";
    at = {4, 0};
    EXPECT_FALSE(ask(GridQuestion::Show, &at));
}

TEST_F(GridTest, MergedCellsAreOnePlace) {
    fill(5, 3);
    grid.SetMergeCellsMode(1, true);
    grid.SetStyleRange(CGXRange(2, 0, 2, 2), CGXStyle().SetValue(L"one").SetMergeCell(MERGE_ALONG_ROW));
    const PixelRect merged = look(2, 1).rect;
    EXPECT_EQ(merged, look(2, 0).rect);
    EXPECT_EQ(merged.right, look(1, 2).rect.right);
    press(2, 2);
    EXPECT_EQ(grid.takeEvents(), Events{L"select 2 0 2 3"}) << "its row";
    press(1, 1);
    key(VK_DOWN);
    EXPECT_EQ(grid.currentCell(), (CellPlace{2, 0}));
    key(VK_DOWN);
    EXPECT_EQ(grid.currentCell(), (CellPlace{3, 1})) << "below merged cells it is in its column again";
    key(VK_UP);
    key(VK_RIGHT);
    EXPECT_EQ(grid.currentCell(), (CellPlace{2, 3}));
    grid.SetMergeCellsMode(0, true);
    grid.SetRowHeight(3, 4, 0);
    key(VK_DOWN);
    EXPECT_EQ(grid.currentCell(), (CellPlace{5, 3})) << "hidden rows are no place to stand on";
}

// The timer's message is sent by hand, so that the test waits for no clock.
TEST_F(GridTest, DragHeldOutsideScrollsOn) {
    fill(100, 40);
    const LPARAM outside = MAKELPARAM(700, 390);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, middle(2, 1));
    grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, outside);
    for (int i = 0; i < 200; ++i) grid.SendMessage(WM_TIMER, 1);
    grid.SendMessage(WM_LBUTTONUP, 0, outside);
    EXPECT_EQ(grid.takeEvents().back(), L"select 2 1 100 40");
    GridTableLook table;
    ask(GridQuestion::Table, &table);
    EXPECT_GT(look(100, 40).rect.width(), 0);

    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, middle(90, 0));
    grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 0xFFFF & -200));
    for (int i = 0; i < 200; ++i) grid.SendMessage(WM_TIMER, 1);
    grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 0xFFFF & -200));
    EXPECT_EQ(grid.takeEvents().back(), L"select 1 0 90 40");
    GridTableLook after;
    ask(GridQuestion::Table, &after);
    EXPECT_EQ(after.first.row, 1u);
    EXPECT_EQ(after.first.column, table.first.column) << "rows are dragged down and up only";
}

TEST_F(GridTest, ColumnsAreSizedByDragAndFitByDoubleClick) {
    fill(5, 3);
    grid.SetValueRange(CGXRange(2, 1), L"a text that is much longer than its column is wide");
    const PixelRect head = look(0, 1).rect;
    const auto at = [&](int x) { return MAKELPARAM(x, head.top + 4); };
    drag(at(head.right - 1), {at(head.right + 29)});
    EXPECT_EQ(look(0, 1).rect.width(), head.width() + 30);
    pressTwice(at(look(0, 1).rect.right - 1));
    EXPECT_GT(look(0, 1).width, 200);
    const PixelRect fitted = look(0, 1).rect;
    drag(at(fitted.right - 1), {at(fitted.right + 5000)});
    EXPECT_EQ(look(0, 1).rect.right, grid.GetClientRect().right) << "its border can be taken again";
    const int header = look(0, 0).rect.right;
    drag(at(header - 1), {at(header + 49), at(header + 200), at(400 - 1)});
    EXPECT_EQ(look(0, 0).rect.right, 400) << "row headers may be wider than what they leave to the cells";
    EXPECT_EQ(grid.takeEvents(), Events()) << "nothing was selected";
}

TEST_F(GridTest, RowFitsItsWrappedTextByDoubleClick) {
    fill(5, 3);
    grid.SetStyleRange(CGXRange(2, 1),
                       CGXStyle().SetWrapText(true).SetValue(L"several words that need some lines"));
    const int before = look(1, 1).height;
    const PixelRect head = look(2, 0).rect;
    pressTwice(MAKELPARAM(head.left + 4, head.bottom - 1));
    EXPECT_GT(look(2, 1).height, 2 * before);
    EXPECT_EQ(look(3, 1).height, before);
}

TEST_F(GridTest, ColumnWiderThanTheWindowIsScrolledThrough) {
    fill(5, 3);
    const auto green = static_cast<COLORREF>(RGB(10, 200, 30));
    grid.SetStyleRange(CGXRange(2, 1), CGXStyle().SetInterior(green));
    grid.SetColWidth(1, 1, 1500);
    pump();
    const int header = look(2, 0).rect.right;
    int steps = 0;
    while (look(2, 2).rect.width() == 0 && ++steps < 100) {
        EXPECT_EQ(look(2, 1).rect.left, header);
        grid.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    }
    EXPECT_GT(steps, 5);
    grid.SendMessage(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(look(2, 1).rect.left, header);
    EXPECT_EQ(look(2, 1).rect.right, grid.GetClientRect().right);
    const int middle = (look(2, 1).rect.top + look(2, 1).rect.bottom) / 2;
    EXPECT_EQ(colorAt(grid.m_hWnd, header + 1, middle), green);
    EXPECT_NE(colorAt(grid.m_hWnd, header / 4, middle), green) << "the row's header lies over it";
    EXPECT_GT(scrollBar(SB_HORZ).nPos, 900);
}
