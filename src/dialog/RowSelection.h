// The selected rows of a list control.
#pragma once

#include "src/platform/mfc/CWnd.h"

// Selects that row beside those that are selected, and scrolls it into view. A row that isn't there is passed
// over.
void selectRow(const CWnd& list, int row);
// No row is selected any more.
void clearSelection(const CWnd& list);
