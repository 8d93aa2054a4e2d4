// Copying rows of a list control.
#pragma once

#include "src/platform/mfc/Controls.h"

// Puts the selected rows on the clipboard as text, the titles above them where they are wanted. Without a
// selection, or while another program has the clipboard, what is on it stays.
void copySelectedRows(CListCtrl& list, bool withTitles = true);
