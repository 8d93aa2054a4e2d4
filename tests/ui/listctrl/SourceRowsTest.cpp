// A list control that shows rows it doesn't have, of a source of a million.
#include <gtest/gtest.h>

#include <set>

#include "src/dialog/WexDialog.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

constexpr int MILLION = 1'000'000;
constexpr int TABLE = 110;
constexpr int DIALOG_OF_ROWS = 1898, OTHER_DIALOG = 1899;

// Field f of row r is "r.f"; rows with odd numbers end before the fourth field.
class Rows : public RowSource {
  public:
    int counted = 0;
    int asked = 0;
    std::set<int> askedRows;

    int rowCount() override {
        ++counted;
        return MILLION;
    }
    CString field(int row, int field) override {
        ++asked;
        askedRows.insert(row);
        if (row % 2 && field == 3) return {};
        return std::to_wstring(row) + L"." + std::to_wstring(field);
    }
    int find(const CString& text, bool whole, int from, int end) override {
        searches.push_back({text, whole, from, end});
        return from <= 700 && 700 < end ? 700 : -1;
    }

    std::vector<std::tuple<CString, bool, int, int>> searches;
};

// The dialog with its list of four columns, up on the screen, painted.
class Shown {
  public:
    explicit Shown(int id, const std::function<void(WexDialog&)>& before = {})
        : dialog({id, GetModuleHandleW(nullptr), GetModuleHandleW(nullptr)}, nullptr) {
        dialog.tileForId(TABLE)->m_auxText = L"x\tFirst\tSecond\tThird\tFourth";
        if (before) before(dialog);
        EXPECT_TRUE(dialog.Create());
        releaseRedraw();
        dialog.ShowWindow(SW_SHOW);
        UpdateWindow(list().m_hWnd);
    }

    WexListCtrl& list() { return dynamic_cast<WexListCtrl&>(*dialog.GetDlgItem(TABLE)); }
    CString cell(int row, int column) { return CellReader(list()).text(row, column); }
    std::vector<int> selected() { return selectedRows(list()); }
    // Asked for itself, LVM_ISITEMVISIBLE is wrong under Wine for rows that far down.
    bool isInSight(int row) {
        const LRESULT top = list().SendMessage(LVM_GETTOPINDEX);
        return row >= top && row < top + list().SendMessage(LVM_GETCOUNTPERPAGE);
    }

    WexDialog dialog;
};

class SourceRows : public testing::Test {
  protected:
    SourceRows() { g_rowSource = &rows; }
    ~SourceRows() override { g_rowSource = nullptr; }

    Rows rows;
};

TEST_F(SourceRows, AreAskedForWhereTheyAreInSight) {
    Shown shown(DIALOG_OF_ROWS);
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

TEST_F(SourceRows, AreSelectedByTheirState) {
    Shown shown(DIALOG_OF_ROWS, [](WexDialog& dialog) { dialog.tileForId(TABLE)->m_value = L"500000"; });
    EXPECT_EQ(shown.selected(), std::vector{500'000});
    EXPECT_TRUE(shown.isInSight(500'000));
    const LRESULT state = shown.list().SendMessage(LVM_GETITEMSTATE, 500'000, LVIS_FOCUSED);
    EXPECT_EQ(state, LVIS_FOCUSED);

    shown.dialog.setValueById(TABLE, L"999999");
    EXPECT_EQ(shown.selected(), (std::vector{500'000, MILLION - 1}));
    EXPECT_TRUE(shown.isInSight(MILLION - 1));
    shown.dialog.setValueById(TABLE, L"1000000");
    shown.dialog.setValueById(TABLE, L"-1");
    EXPECT_EQ(shown.selected().size(), 2u);
    shown.dialog.setValueByKey(L"table", L"-1");
    EXPECT_EQ(shown.selected(), std::vector<int>());
}

TEST_F(SourceRows, AreSearchedByTheirSource) {
    Shown shown(DIALOG_OF_ROWS);
    const auto search = [&](UINT flags, int start) {
        LVFINDINFOW what{};
        what.flags = flags;
        what.psz = L"7";
        return shown.list().SendMessage(LVM_FINDITEMW, start, reinterpret_cast<LPARAM>(&what));
    };
    EXPECT_EQ(search(LVFI_STRING, -1), 700);
    EXPECT_EQ(search(LVFI_PARTIAL, 900), -1);
    EXPECT_EQ(search(LVFI_PARTIAL | LVFI_WRAP, 900), 700);
    EXPECT_EQ(search(LVFI_PARAM, 0), -1) << "rows of a source have no data";
    const std::vector<std::tuple<CString, bool, int, int>> asked = {{L"7", true, 0, MILLION},
                                                                    {L"7", false, 900, MILLION},
                                                                    {L"7", false, 900, MILLION},
                                                                    {L"7", false, 0, 900}};
    EXPECT_EQ(rows.searches, asked);
}

TEST_F(SourceRows, AreNotAskedForByListsOfOtherDialogs) {
    Shown shown(OTHER_DIALOG, [](WexDialog& dialog) { dialog.tileForId(TABLE)->m_value = L"0"; });
    EXPECT_EQ(rowCount(shown.list()), 0);
    shown.list().SendMessage(LVM_SETITEMCOUNT, 5);
    UpdateWindow(shown.list().m_hWnd);
    EXPECT_EQ(shown.cell(2, 0), L"");
    EXPECT_EQ(rows.counted + rows.asked, 0);
}

}  // namespace
