#include "src/listctrl/ListRows.h"

#include <algorithm>

#include "src/dialog/EntrySelection.h"
#include "src/dialog/TileWarnings.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/RowText.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// Each row gets a number of its own as its item data, by which the control can be told to sort the rows.
LPARAM g_lastNumber = 0;

// Gives the row's index, which is another one where the list sorts its rows; -1 where it takes none.
int insertItem(const CWnd& list, int index, wchar_t* text) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_INDENT | LVIF_PARAM;
    item.iItem = index;
    item.pszText = text;
    item.iImage = -1;
    item.lParam = ++g_lastNumber;
    return static_cast<int>(list.sendStraight(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

bool setText(const CWnd& list, int row, int column, const wchar_t* text) {
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    return list.sendStraight(LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

// The last of the cells that the row didn't take, counted from 1; nothing is lost with an empty one.
int setTexts(const CWnd& list, int row, int column, RowCells& cells) {
    int lost = 0;
    while (const wchar_t* cell = cells.next())
        if (!setText(list, row, column++, cell) && *cell) [[unlikely]]
            lost = column;
    return lost;
}

bool isVirtual(const CWnd& list) { return list.GetStyle() & LVS_OWNERDATA; }

// Tells the author what a row has lost, which is all in a list that takes none.
void warnOfLost(const CWnd& list, int lost) {
    if (isVirtual(list))
        return warn(WARN_OTHER_KIND, [&] {
            return L"tile " + shownTile(list) + L" is a virtual list: it takes a number of rows, and no rows";
        });
    const int columns = columnCount(list);
    if (lost > std::max(columns, 1)) warnSurplusFields(list, lost, columns);
}

// The texts of a new row behind its first one.
void setRest(const CWnd& list, int row, RowCells& cells) {
    const int lost = setTexts(list, row, 1, cells);
    if (lost > 0 || isVirtual(list)) [[unlikely]]
        warnOfLost(list, lost);
}

// The rows that waited, put into a list one by one.
class WaitingRows {
  public:
    explicit WaitingRows(const CWnd& list) : m_list(list) { holdRedraw(list.m_hWnd); }

    void insert(int index, const CString& text) {
        m_cells.readWaiting(text);
        setRest(m_list, insertItem(m_list, index, m_cells.next()), m_cells);
    }

  private:
    const CWnd& m_list;
    RowCells m_cells;
};

void insertAtTop(const CWnd& list, const CStringArray& rows) {
    const auto count = static_cast<int>(rows.size());
    if (count == 0) return;
    // Inserting in order gives the same rows as inserting in reverse at the top, and is faster. A list that
    // sorts itself keeps equal rows in insertion order, so there the rows go in reversed, at the top.
    const bool sorts = list.GetStyle() & (LVS_SORTASCENDING | LVS_SORTDESCENDING);
    WaitingRows waiting(list);
    for (int at = 0; at < count; ++at) waiting.insert(sorts ? 0 : at, rows[sorts ? count - 1 - at : at]);
}

}  // namespace

void appendRow(const CWnd& list, std::wstring_view text) {
    holdRedraw(list.m_hWnd);
    const int row = rowCount(list);
    RowCells cells;
    cells.read(text);
    insertItem(list, row, cells.next());
    setRest(list, row, cells);
}

void replaceRow(const CWnd& list, int row, std::wstring_view text) {
    holdRedraw(list.m_hWnd);
    RowCells cells;
    cells.read(text);
    if (const int lost = setTexts(list, row, 0, cells)) warnOfLost(list, lost);
}

void setCell(const CWnd& list, int row, int column, const CString& text) {
    holdRedraw(list.m_hWnd);
    setText(list, row, column, text.c_str());
}

void reloadWaitingRows(const CWnd& list, const CCtrlInfo& tile) {
    WaitingRows waiting(list);
    list.SendMessage(LVM_DELETEALLITEMS);
    int index = 0;
    for (const CString& row : tile.m_listItems) waiting.insert(index++, row);
}

void applyListControl(const CWnd& list, const CCtrlInfo& tile) {
    if (!showsRecords(list))
        insertAtTop(list, tile.m_listItems);
    else if (!tile.m_listItems.empty())
        warnOfLost(list, 0);
    if (tile.m_value.IsEmpty()) return;
    const int row = decimalNumber(tile.m_value);
    selectRow(list, row);
    if (row > 0 && row >= rowCount(list)) warnNoEntry(list, tile.m_value, Entries::complete);
}

// kept: only the key path clears the selection by a negative row.
void setListControlValue(CWnd& list, const CString& value, bool byKey) {
    const int row = decimalNumber(value);
    if (row == 0) warnUnlessNumber(value);
    if (row > 0 && row >= rowCount(list)) warnNoEntry(list, value, Entries::mayWait);
    if (row >= 0)
        selectRow(list, row);
    else if (byKey)
        clearSelection(list);
}

void emptyListControl(CWnd& list, bool /*byKey*/) { list.SendMessage(LVM_DELETEALLITEMS); }

void addToListControl(CWnd& list, const wchar_t* row, int operation) {
    const int replaced = operation == LIST_CHANGE_ROW ? firstSelectedRow(list) : -1;
    if (replaced >= 0)
        replaceRow(list, replaced, row);
    else
        appendRow(list, row);
}
