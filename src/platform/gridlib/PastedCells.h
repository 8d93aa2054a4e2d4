// Where pasted cells go. Portable.
#pragma once

#include <vector>

#include "src/platform/gridlib/CellsText.h"
#include "src/platform/gridlib/GridTable.h"

struct PastedCells {
    std::vector<GridTable::Entry> entries;
    size_t outside = 0;    // how many cells the table has no place for
    bool tooMany = false;  // then there are no entries
};

// The rows' cells from the top left corner of `selected` on; a single cell goes to each of the selected ones.
// More than `most` are too many.
PastedCells pastedCells(const GridTable& table, const CGXRange& selected, const CellRows& rows,
                        uint64_t most);
