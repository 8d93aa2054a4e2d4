// Cells as text, for the clipboard: lines of cells with tabs between them, as spreadsheets give and take
// them, and a table in HTML. Portable.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "src/platform/base/CString.h"

using CellRows = std::vector<CStringArray>;

// One line for each row, ended by CR and LF. A cell with a tab, a line end or a quotation mark at its start
// stands in quotation marks, those within it doubled.
std::wstring cellsAsTabs(const CellRows& rows);

// The reverse. Lines end by LF, CR or both; the last one's end is optional. A quotation mark opens a quoted
// cell only where a cell begins and one that ends the cell follows; else it is text. Never fails.
CellRows cellsFromTabs(std::wstring_view text);

// The same rows in the platform's clipboard format for HTML, UTF-8, with its heading of byte offsets.
std::string cellsAsHtml(const CellRows& rows);
