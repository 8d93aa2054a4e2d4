// A row of a list control as one text: its cells are separated by tabs. Portable.
#pragma once

#include <string_view>

#include "src/platform/base/CString.h"

// The parts between tabs, empty ones too: one more than there are tabs.
CStringArray splitAtTabs(std::wstring_view text);

// The cells of a row that waited for the dialog's start: without blanks at their ends, unless there is only
// one. kept: a row that is added to a live list keeps them.
CStringArray waitingRowCells(std::wstring_view text);
