// The sort of a real list control beside the plain procedure, cell by cell with messages, on a second one.
#include "src/listctrl/ListSort.h"

#include <gtest/gtest.h>

#include "host/units/LinearUnits.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/ListColumns.h"
#include "src/platform/mfc/RedrawHold.h"
#include "tests/unit/listctrl/PlainSort.h"
#include "tests/unit/listctrl/RandomCells.h"

namespace {

constexpr UINT STATES = 0xFF0F;

// The rows as messages to the control tell them.
class ControlRows : public PlainRows {
  public:
    explicit ControlRows(CListCtrl& list) : m_list(list) {}

    int rowCount() const override { return ::rowCount(m_list); }
    int columnCount() const override { return ::columnCount(m_list); }
    PlainCell cell(int row, int column) const override {
        wchar_t text[1000] = {};
        LVITEMW item = itemAt(row, column, LVIF_TEXT | LVIF_IMAGE);
        item.pszText = text;
        item.cchTextMax = 1000;
        m_list.getItem(item);
        return {item.pszText, item.iImage};
    }
    void setCell(int row, int column, const PlainCell& cell) override {
        LVITEMW item = itemAt(row, column, column > 0 ? LVIF_TEXT | LVIF_IMAGE : LVIF_TEXT);
        item.pszText = const_cast<wchar_t*>(cell.text.c_str());
        item.iImage = cell.image;
        m_list.setItem(item);
    }
    PlainRowData rowData(int row) const override {
        LVITEMW item = itemAt(row, 0, LVIF_IMAGE | LVIF_STATE | LVIF_PARAM);
        m_list.getItem(item);
        return {item.iImage, item.state, item.lParam};
    }
    void setRowData(int row, const PlainRowData& data) override {
        LVITEMW item = itemAt(row, 0, LVIF_IMAGE | LVIF_STATE | LVIF_PARAM);
        item.iImage = data.image;
        item.state = data.state;
        item.lParam = data.data;
        m_list.setItem(item);
    }

  private:
    static LVITEMW itemAt(int row, int column, UINT mask) {
        LVITEMW item{};
        item.mask = mask;
        item.iItem = row;
        item.iSubItem = column;
        item.stateMask = STATES;
        return item;
    }

    CListCtrl& m_list;
};

// All that a program can see of the list's rows.
std::wstring contentOf(CListCtrl& list) {
    const ControlRows rows(list);
    std::wstring content;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const PlainRowData data = rows.rowData(row);
        for (const auto number : {intptr_t(data.image), intptr_t(data.state), data.data})
            content += std::to_wstring(number) + L' ';
        for (int column = 0; column < rows.columnCount(); ++column) {
            const PlainCell cell = rows.cell(row, column);
            content += L'[' + cell.text + L' ' + std::to_wstring(cell.image) + L']';
        }
        content += L'\n';
    }
    for (const UINT relation : {LVNI_FOCUSED, LVNI_SELECTED})
        content +=
            std::to_wstring(list.SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), relation)) + L' ';
    return content + std::to_wstring(list.SendMessage(LVM_GETSELECTEDCOUNT));
}

// Rows with images, item data and states of every kind, as Lisp adds them and as other code might.
void fill(const CListCtrl& list, RandomCells random, int rows) {
    const int mix = random.below(5);
    const bool plain = random.below(2);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < 3; ++column) {
            if (column == 2 && random.below(3) == 0) continue;  // no cell was ever set
            const std::wstring text = random.cell(mix);
            LVITEMW item{};
            item.iItem = row;
            item.iSubItem = column;
            item.mask = LVIF_TEXT;
            item.pszText = const_cast<wchar_t*>(text.c_str());
            if (column == 0) item.mask |= LVIF_IMAGE | LVIF_PARAM | LVIF_STATE;
            if (column > 0 && !plain) item.mask |= LVIF_IMAGE;
            item.iImage = plain ? I_IMAGECALLBACK : random.below(3);
            item.lParam = plain ? 0 : row;
            item.stateMask = STATES;
            item.state = random.below(3) ? 0 : LVIS_SELECTED;
            if (random.below(8) == 0) item.state |= LVIS_FOCUSED;
            if (!plain && random.below(4) == 0)
                item.state |= LVIS_CUT | INDEXTOOVERLAYMASK(2) | INDEXTOSTATEIMAGEMASK(3);
            list.SendMessage(column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
                             reinterpret_cast<LPARAM>(&item));
        }
    }
}

TEST(ListSort, LeavesTheControlAsTheExchangeOfRowsWould) {
    CWnd owner;
    owner.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 400, 300}, nullptr, 0);
    for (unsigned seed = 1; seed <= 150; ++seed) {
        RandomCells shape(seed);
        const DWORD style = WS_CHILD | LVS_REPORT | (shape.below(4) ? 0 : LVS_SINGLESEL);
        const int rows = shape.below(seed % 25 ? 12 : 80);
        const int column = shape.below(4);  // the last of them isn't there
        const bool ascending = shape.below(2);
        CListCtrl ours, plain;
        for (CListCtrl* list : {&ours, &plain}) {
            list->CreateEx(0, L"SysListView32", L"", style, RECT{0, 0, 300, 200}, owner.m_hWnd, 1);
            for (int at = 0; at < 3; ++at) insertColumn(*list, at, L"Head", 80);
            fill(*list, RandomCells(seed), rows);
        }
        ASSERT_EQ(contentOf(ours), contentOf(plain)) << "before, seed " << seed;
        ControlRows plainRows(plain);
        for (const bool direction : {ascending, !ascending}) {
            sortRows(ours, column, direction, units::distanceFromText);
            PlainSort(plainRows, column, direction, units::distanceFromText).run();
            ASSERT_EQ(contentOf(ours), contentOf(plain)) << "seed " << seed;
        }
        releaseRedraw();
    }
}

}  // namespace
