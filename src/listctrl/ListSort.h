// Sorting the rows of a list control by one column.
#pragma once

#include "src/listctrl/CellOrder.h"
#include "src/platform/mfc/Controls.h"

// Puts the rows in sortedOrder. Texts, images, item data and states, the selection too, go with their row.
// Redraw is held. False where the column isn't there or the rows aren't the list's own (LVS_OWNERDATA):
// nothing has changed then.
bool sortRows(CListCtrl& list, int column, bool ascending, const DistanceParser& parse);

// The column's head shows the direction in the platform's way, and no other column's does.
void showSortDirection(const CWnd& list, int column, bool ascending);
