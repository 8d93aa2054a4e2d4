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
// No row is selected any more.
void clearSelection(const CWnd& list);
