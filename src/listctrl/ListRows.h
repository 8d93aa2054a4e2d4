// The rows of a list control as Lisp fills them. A row is one text, its cells separated by tabs; cells beyond
// the last column are dropped. What changes shows at the next turn of the message loop.
#pragma once

#include "src/dialog/CCtrlInfo.h"
#include "src/platform/mfc/CWnd.h"

// Adds a row below the others.
void appendRow(const CWnd& list, std::wstring_view text);
// Writes the cells of a row that is there; columns beyond the text's last cell keep theirs.
void replaceRow(const CWnd& list, int row, std::wstring_view text);
// A cell that isn't there is passed over.
void setCell(const CWnd& list, int row, int column, const CString& text);

// The rows that wait in a record, instead of those that the list has.
void reloadWaitingRows(const CWnd& list, const CCtrlInfo& tile);
// The rows and the value that wait in a record, carried over at the start. The rows stand before those that
// the list has already.
void applyListControl(const CWnd& list, const CCtrlInfo& tile);

// The value is the number of a row to select, beside those that are selected.
void setListControlValue(CWnd& list, const CString& value, bool byKey);
void emptyListControl(CWnd& list, bool byKey);
// LIST_CHANGE_ROW writes over the first selected row, where there is one; otherwise the row is appended.
void addToListControl(CWnd& list, const wchar_t* row, int operation);
