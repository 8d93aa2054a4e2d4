// A grid's window as a tile: what it has at its beginning, what other modules may ask it, what it leaves.
#include "src/grid/WexGrid.h"

#include <gtest/gtest.h>

#include "src/platform/gridlib/GridWindowClass.h"
#include "tests/support/Messages.h"
#include "tests/ui/tree/LiveObjects.h"

namespace {

struct WexGridTest : testing::Test {
    WexGridTest() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 300, 200}, nullptr, 0);
    }

    void attach(WexGrid& grid) const {
        grid.SubclassWindow(CreateWindowExW(WS_EX_STATICEDGE, GRID_WINDOW_CLASS, L"",
                                            WS_CHILD | WS_DISABLED | WS_BORDER, 0, 0, 280, 180, parent.m_hWnd,
                                            nullptr, nullptr, nullptr));
        grid.begin();
    }

    GridWindowClass windowClass;
    CWnd parent;
};

TEST_F(WexGridTest, BeginsLockedWithoutFrameAndColumnsAloneCanBeDragged) {
    WexGrid grid;
    attach(grid);
    EXPECT_FALSE(grid.GetStyle() & WS_BORDER);
    EXPECT_FALSE(grid.GetExStyle() & WS_EX_STATICEDGE);
    const CGXGridParam& param = *grid.GetParam();
    EXPECT_TRUE(param.IsLockReadOnly() && param.IsEnableUndo() && param.IsNewGridLineMode() &&
                param.IsEnableTrackColWidth());
    EXPECT_FALSE(param.IsEnableMoveCols() || param.IsEnableMoveRows() || param.IsEnableTrackRowHeight());
}

TEST_F(WexGridTest, OtherModulesMakeOneByItsRunTimeClass) {
    const std::unique_ptr<CObject> made(WexGrid::CreateObject());
    EXPECT_STREQ(WexGrid::GetThisClass()->name, "WexGrid");
    EXPECT_EQ(made->GetRuntimeClass(), WexGrid::GetThisClass());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CGXGridWnd)));
}

// Opens and closes grids that lines have filled and in which a cell was edited.
long leftBehind(const WexGridTest& test, int rounds) {
    const long before = liveObjects();
    for (int round = 0; round < rounds; ++round) {
        WexGrid grid;
        test.attach(grid);
        grid.SetRowCount(1);
        grid.SetColCount(3);
        grid.setJustification(2, ALIGN_RIGHT);
        CCtrlInfo tile;
        tile.m_value = L"2";
        for (int line = 0; line < 40; ++line) tile.m_listItems.push_back(L"a longer text\tb\tc\td");
        grid.applyRecord(tile);
        grid.SetStyleRange(CGXRange(41, 1), CGXStyle().SetValue(L"edit"));
        grid.GetParam()->SetLockReadOnly(false);
        grid.SetStyleRange(CGXRange(3, 1), CGXStyle().SetReadOnly(false).SetControl(CONTROL_EDIT));
        grid.SetCurrentCell(3, 1, 10);
        SetFocus(grid.m_hWnd);
        grid.SendMessage(WM_CHAR, L'x');
        EXPECT_EQ(grid.GetValueRowCol(3, 1), L"x");
        pump();
        ::DestroyWindow(grid.m_hWnd);
    }
    return liveObjects() - before;
}

TEST_F(WexGridTest, AThousandFilledGridsLeaveNothing) {
    leftBehind(*this, 10);
    EXPECT_EQ(leftBehind(*this, 1000), 0);
}

}  // namespace
