// The rows and the value that wait in the record of a list tile, carried over to its control at the start.
#pragma once

#include "src/dialog/CCtrlInfo.h"
#include "src/platform/mfc/CWnd.h"

// The rows stand before those that the control has already. An empty value selects the first row.
void applyListBox(const CWnd& listBox, const CCtrlInfo& tile);
// An empty value selects nothing, and a negative one clears the selection.
void applyComboBox(const CWnd& comboBox, const CCtrlInfo& tile);
