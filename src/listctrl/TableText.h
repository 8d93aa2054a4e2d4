// Rows of a table as text that a spreadsheet or an editor takes. Portable.
#pragma once

#include <vector>

#include "src/platform/base/CString.h"

// One line for each row, ended by CR and LF, its cells joined by tabs. Tabs and line ends within a cell
// become blanks.
CString tableText(const std::vector<CStringArray>& rows);
