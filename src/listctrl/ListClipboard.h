// Copying rows of a list control.
#pragma once

#include "src/platform/mfc/Controls.h"

// Puts the titles and the selected rows on the clipboard as text. Without a selection, or while another
// program has the clipboard, what is on it stays.
void copySelectedRows(CListCtrl& list);
