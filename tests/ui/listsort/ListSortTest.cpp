// The sort of a real list control: whole rows, with all that they have, come into the order of the plain
// procedure.
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

struct Row {
    LPARAM data;
    UINT state;
    std::vector<std::wstring> texts;
    std::vector<int> images;  // the first one is the row's
    bool operator==(const Row&) const = default;
};

// All that a program can see of the list's rows.
std::vector<Row> rowsOf(CListCtrl& list) {
    std::vector<Row> rows(rowCount(list));
    for (size_t at = 0; at < rows.size(); ++at) {
        wchar_t text[1000] = {};
        LVITEMW item{};
        item.iItem = static_cast<int>(at);
        item.stateMask = STATES;
        for (; item.iSubItem < columnCount(list); ++item.iSubItem) {
            item.mask = LVIF_TEXT | LVIF_IMAGE | (item.iSubItem == 0 ? LVIF_STATE | LVIF_PARAM : 0);
            item.pszText = text;
            item.cchTextMax = ARRAYSIZE(text);
            list.getItem(item);
            rows[at].texts.push_back(item.pszText);
            rows[at].images.push_back(item.iImage);
        }
        rows[at].data = item.lParam;
        rows[at].state = item.state;
    }
    return rows;
}

// The rows after the sort of that column, which may not be there.
std::vector<Row> sorted(const std::vector<Row>& rows, size_t column, bool ascending) {
    std::vector<std::wstring> cells;
    for (const Row& row : rows) cells.push_back(column < row.texts.size() ? row.texts[column] : L"");
    const PlainSort plain(cells, ascending, units::distanceFromText);
    std::vector<Row> result;
    for (const int row : plain.order()) result.push_back(rows[row]);
    return result;
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

TEST(ListSort, MovesWholeRows) {
    CWnd owner;
    owner.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 400, 300}, nullptr, 0);
    for (unsigned seed = 1; seed <= 150; ++seed) {
        RandomCells shape(seed);
        const DWORD style = WS_CHILD | LVS_REPORT | (shape.below(4) ? 0 : LVS_SINGLESEL);
        const int rows = shape.below(seed % 25 ? 12 : 80);
        const int column = shape.below(4);  // the last of them isn't there
        const bool ascending = shape.below(2);
        CListCtrl list;
        list.CreateEx(0, L"SysListView32", L"", style, RECT{0, 0, 300, 200}, owner.m_hWnd, 1);
        for (int at = 0; at < 3; ++at) insertColumn(list, at, L"Head", 80);
        fill(list, RandomCells(seed), rows);
        for (const bool direction : {ascending, !ascending}) {
            const std::vector<Row> wanted = sorted(rowsOf(list), column, direction);
            sortRows(list, column, direction, units::distanceFromText);
            ASSERT_TRUE(rowsOf(list) == wanted) << "seed " << seed;
        }
        releaseRedraw();
    }
}

}  // namespace
