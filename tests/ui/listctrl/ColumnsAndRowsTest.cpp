// Columns and rows on a list control of its own, beside what the control itself measures.
#include <gtest/gtest.h>

#include "src/listctrl/ListCells.h"
#include "src/listctrl/ListColumns.h"
#include "src/listctrl/ListRows.h"
#include "src/listctrl/RowSelection.h"
#include "src/platform/mfc/Controls.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

class ColumnsAndRows : public testing::Test {
  protected:
    ColumnsAndRows() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 300, 200}, nullptr, 0);
        list.CreateEx(0, L"SysListView32", L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, RECT{0, 0, 300, 200},
                      parent.m_hWnd, 1);
    }
    ~ColumnsAndRows() override { releaseRedraw(); }

    CWnd parent;
    CListCtrl list;
};

TEST_F(ColumnsAndRows, ARowSelectedWhileRedrawIsHeldIsScrolledTo) {
    insertColumn(list, 0, L"Name", 50);
    for (int row = 0; row < 100; ++row) appendRow(list, std::to_wstring(row));
    selectRow(list, 90);
    EXPECT_TRUE(list.SendMessage(LVM_ISITEMVISIBLE, 90));
}

TEST_F(ColumnsAndRows, DrawAtTheNextTurnOfTheLoop) {
    insertColumn(list, 0, L"Name", 50);
    UpdateWindow(list.m_hWnd);
    RECT area;
    appendRow(list, L"one");
    setCell(list, 0, 0, L"ONE");
    replaceRow(list, 0, L"two\t2");
    insertColumn(list, 1, L"Size", 50);
    EXPECT_FALSE(GetUpdateRect(list.m_hWnd, &area, FALSE));
    releaseRedraw();
    EXPECT_TRUE(GetUpdateRect(list.m_hWnd, &area, FALSE));
}

}  // namespace
