// What stands in the cells of a list control.
#pragma once

#include <string_view>

#include "src/platform/base/CString.h"
#include "src/platform/mfc/Controls.h"

// The header of a list control; null for a list that has none.
HWND headerOf(const CWnd& list);
int columnCount(const CWnd& list);
int rowCount(const CWnd& list);
// At most 255 characters.
CString columnTitle(const CWnd& list, int column);

// Reads cells one after the other, of any length.
class CellReader {
  public:
    explicit CellReader(CListCtrl& list) : m_list(list), m_buffer(256, L'\0') {}

    // Fills `item` as LVM_GETITEM does by its mask, row and column, and gives the text, which holds until the
    // next one is read.
    std::wstring_view read(LVITEMW& item);
    CString text(int row, int column);

  private:
    CListCtrl& m_list;
    CString m_buffer;
};
