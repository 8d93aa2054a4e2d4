// A list control that shows rows it doesn't have, of a source of a million.
#include <gtest/gtest.h>

#include <set>

#include "src/dialog/WexDialog.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

constexpr int MILLION = 1'000'000;
constexpr int TABLE = 110;
constexpr int DIALOG_OF_ROWS = 1898;

// Field f of row r is "r.f"; rows with odd numbers end before the fourth field.
class Rows : public RowSource {
  public:
    int counted = 0;
    std::set<int> askedRows;

    int rowCount() override {
        ++counted;
        return MILLION;
    }
    CString field(int row, int field) override {
        askedRows.insert(row);
        if (row % 2 && field == 3) return {};
        return std::to_wstring(row) + L"." + std::to_wstring(field);
    }
    int find(const CString&, bool, int, int) override { return -1; }
};

// The dialog with its list of four columns, up on the screen, painted.
class Shown {
  public:
    Shown() : dialog({DIALOG_OF_ROWS, GetModuleHandleW(nullptr), GetModuleHandleW(nullptr)}, nullptr) {
        dialog.tileForId(TABLE)->m_auxText = L"x\tFirst\tSecond\tThird\tFourth";
        EXPECT_TRUE(dialog.Create());
        releaseRedraw();
        dialog.ShowWindow(SW_SHOW);
        UpdateWindow(list().m_hWnd);
    }

    WexListCtrl& list() { return dynamic_cast<WexListCtrl&>(*dialog.GetDlgItem(TABLE)); }
    WexDialog dialog;
};

class SourceRows : public testing::Test {
  protected:
    SourceRows() { g_rowSource = &rows; }
    ~SourceRows() override { g_rowSource = nullptr; }

    Rows rows;
};

TEST_F(SourceRows, AreAskedForWhereTheyAreInSight) {
    Shown shown;
    EXPECT_EQ(rowCount(shown.list()), MILLION);
    EXPECT_EQ(rows.counted, 1);
    const auto page = static_cast<int>(shown.list().SendMessage(LVM_GETCOUNTPERPAGE));
    EXPECT_GE(static_cast<int>(rows.askedRows.size()), page);
    EXPECT_LE(static_cast<int>(rows.askedRows.size()), page + 2);

    rows.askedRows.clear();
    shown.list().SendMessage(LVM_ENSUREVISIBLE, MILLION - 1, FALSE);
    UpdateWindow(shown.list().m_hWnd);
    EXPECT_TRUE(rows.askedRows.contains(MILLION - 1));
    EXPECT_LE(static_cast<int>(rows.askedRows.size()), 2 * (page + 2));
}

}  // namespace
