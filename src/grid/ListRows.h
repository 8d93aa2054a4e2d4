// Rows of a grid as the list functions give them: one line for each, and lines that go on with the one above.
// Portable.
#pragma once

#include <functional>

#include "src/grid/RowCellWriter.h"

struct ListRowOptions {
    bool merges = false;  // equal neighbours in a row read as one, where it has three fields or more
    int keyColumn = -1;   // the field that is empty in lines that go on; -1 for none
    std::function<uint8_t(uint32_t column)> alignmentOf;
    CGXStyle style;  // of each cell
};

// Writes the lines into the table, from its last row on: each takes the spare row that stands there and
// leaves a new one behind it. Continuation lines leave the list; the line that they were folded into stays.
void addListRows(CGXGridCore& grid, CStringArray& lines, const ListRowOptions& options);
