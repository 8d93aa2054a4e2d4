// The sort of a grid's rows by the texts of a column. Portable.
#pragma once

#include "src/platform/gridlib/CGXGridCore.h"

// Sorts the rows from `low` to `high`; -1 for the last row but one.
// kept: no text moves. Where two rows would change places, their texts stay, and each row's cells get the
// style that the other row's cell has in the sorted column. Cells that are read only refuse it under the
// lock.
void sortRowsByText(CGXGridCore& grid, int column, bool ascending, int low, int high);
