// The selected rows of a list control.
#pragma once

#include <vector>

#include "src/platform/mfc/CWnd.h"

// In rising order.
std::vector<int> selectedRows(const CWnd& list);
// -1 for none.
int firstSelectedRow(const CWnd& list);

// Selects that row beside those that are selected, and scrolls it into view. A row that isn't there is passed
// over.
void selectRow(const CWnd& list, int row);
// Every row, of a list that lets several be selected.
void selectAllRows(const CWnd& list);
// No row is selected any more.
void clearSelection(const CWnd& list);

// Around the platform's handling of a key or a press in a list that has no items of its own and lets one row
// be selected. Wine moves such a selection by asking every row whether it is to lose it, which takes seconds
// for a million; so it is taken off before, and put back where the platform selected nothing.
class SelectionMove {
  public:
    explicit SelectionMove(const CWnd& list);
    ~SelectionMove();
    SelectionMove(const SelectionMove&) = delete;
    SelectionMove& operator=(const SelectionMove&) = delete;

  private:
    const CWnd& m_list;
    int m_row;  // -1 where there is nothing to put back
};
