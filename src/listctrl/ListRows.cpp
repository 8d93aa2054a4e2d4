#include "src/listctrl/ListRows.h"

#include "src/dialog/RowSelection.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/RowText.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// Gives the row's index, which is another one where the list sorts its rows; -1 where it takes none.
int insertItem(const CWnd& list, int index, CString& text) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_INDENT;
    item.iItem = index;
    item.pszText = text.data();
    item.iImage = -1;
    return static_cast<int>(list.sendStraight(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

void setText(const CWnd& list, int row, int column, const CString& text) {
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    list.sendStraight(LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void setTexts(const CWnd& list, int row, const CStringArray& cells, size_t firstColumn) {
    for (size_t column = firstColumn; column < cells.size(); ++column)
        setText(list, row, static_cast<int>(column), cells[column]);
}

void insertWaitingRow(const CWnd& list, int index, const CString& text) {
    CStringArray cells = waitingRowCells(text);
    setTexts(list, insertItem(list, index, cells[0]), cells, 1);
}

void insertAtTop(const CWnd& list, const CStringArray& rows) {
    const auto count = static_cast<int>(rows.size());
    // Each row goes to its own place, which gives what inserting at the top from the last to the first gives;
    // but a list that sorts its rows puts equal ones in the order in which they come.
    const bool sorts = list.GetStyle() & (LVS_SORTASCENDING | LVS_SORTDESCENDING);
    for (int at = 0; at < count; ++at)
        insertWaitingRow(list, sorts ? 0 : at, rows[sorts ? count - 1 - at : at]);
}

}  // namespace

void appendRow(const CWnd& list, const CString& text) {
    holdRedraw(list.m_hWnd);
    const int row = rowCount(list);
    CStringArray cells = splitAtTabs(text);
    insertItem(list, row, cells[0]);
    setTexts(list, row, cells, 1);
}

void replaceRow(const CWnd& list, int row, const CString& text) {
    holdRedraw(list.m_hWnd);
    setTexts(list, row, splitAtTabs(text), 0);
}

void setCell(const CWnd& list, int row, int column, const CString& text) {
    holdRedraw(list.m_hWnd);
    setText(list, row, column, text);
}

void reloadWaitingRows(const CWnd& list, const CCtrlInfo& tile) {
    holdRedraw(list.m_hWnd);
    list.SendMessage(LVM_DELETEALLITEMS);
    for (size_t at = 0; at < tile.m_listItems.size(); ++at)
        insertWaitingRow(list, static_cast<int>(at), tile.m_listItems[at]);
}

void applyListControl(const CWnd& list, const CCtrlInfo& tile) {
    holdRedraw(list.m_hWnd);
    if (!showsRecords(list)) insertAtTop(list, tile.m_listItems);
    if (!tile.m_value.IsEmpty()) selectRow(list, decimalNumber(tile.m_value));
}
