#include "src/listctrl/ListRows.h"

#include "src/dialog/EntrySelection.h"
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

void setText(const CWnd& list, int row, int column, const wchar_t* text) {
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    list.sendStraight(LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void setTexts(const CWnd& list, int row, int column, RowCells& cells) {
    while (const wchar_t* cell = cells.next()) setText(list, row, column++, cell);
}

// The rows that waited, put into a list one by one.
class WaitingRows {
  public:
    explicit WaitingRows(const CWnd& list) : m_list(list) { holdRedraw(list.m_hWnd); }

    void insert(int index, const CString& text) {
        m_cells.readWaiting(text);
        setTexts(m_list, insertItem(m_list, index, m_cells.next()), 1, m_cells);
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
    setTexts(list, row, 1, cells);
}

void replaceRow(const CWnd& list, int row, std::wstring_view text) {
    holdRedraw(list.m_hWnd);
    RowCells cells;
    cells.read(text);
    setTexts(list, row, 0, cells);
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
    if (!showsRecords(list)) insertAtTop(list, tile.m_listItems);
    if (!tile.m_value.IsEmpty()) selectRow(list, decimalNumber(tile.m_value));
}

// kept: only the key path clears the selection by a negative row.
void setListControlValue(CWnd& list, const CString& value, bool byKey) {
    const int row = decimalNumber(value);
    if (row == 0) warnUnlessNumber(value);
    if (row >= rowCount(list)) warnNoEntry(list, value);
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
