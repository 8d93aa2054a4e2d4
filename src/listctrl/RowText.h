// A row of a list control as one text: its cells are separated by tabs. Portable.
#pragma once

#include <string_view>

#include "src/platform/base/CString.h"

// Walks over the cells of one row after the other, without making a text of each.
class RowCells {
  public:
    // The cells between the tabs, empty ones too: one more than there are tabs.
    void read(std::wstring_view row);
    // The same for a row that waited for the dialog's start: its cells lose the blanks at their ends, unless
    // there is only one. kept: a row that is added to a live list keeps them.
    void readWaiting(std::wstring_view row);

    // The next cell, null behind the last one. It lives until the next row is read.
    wchar_t* next();

  private:
    CString m_row;
    size_t m_at = 0;
    bool m_cutsBlanks = false;
};
