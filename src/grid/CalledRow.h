// A row as wex_grid_setrow and wex_grid_addrow write it. Portable.
#pragma once

#include "src/grid/RowCellWriter.h"

// No text at all would merge down.
constexpr int NO_VERTICAL_CODE = -1;

// Lays the fields of the text across the row, -1 for a new last one; gives the row's number. A text without a
// tab fills the row and reads as one cell. Fields that are empty leave their cells alone, but for the first.
// With `merges`, equal neighbours in the row read as one; a vertical code from 0 up does the same down the
// first column, from 1 up down all columns. A row or a field that the table has no place for is left out.
int buildGridRow(CGXGridCore& grid, std::wstring_view text, int row, bool merges, int verticalCode,
                 const CGXStyle& style);
