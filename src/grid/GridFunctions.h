// The Lisp functions that shape a grid. All need a running dialog; a tile that is no grid gives an alert.
// Rows and columns count from 1, with the headers at 0; they are integers, or reals that are truncated, and
// anything else counts as 0.
#pragma once

#include "src/shell/LispCall.h"

// (wex_grid_setrowcolumns tile rows columns) -> no value; nil without a grid or an argument. The count of
// columns includes that of the headers: from 1 down it leaves them alone. From two rows on, the rows' headers
// are emptied. A negative count of rows, and more than 16,000,000 rows or 65,536 columns, leave that count as
// it is.
void gridSetRowColumns(LispCall& call);

// (wex_grid_setrowheight tile row height) -> no value; nil without a grid or an argument. Pixels at 96 dots
// per inch; a height that is no short changes nothing.
void gridSetRowHeight(LispCall& call);
// (wex_grid_setcolumnwidth tile column width) -> the same for a column.
void gridSetColumnWidth(LispCall& call);

// (wex_grid_getcolumncount tile) -> the number of the last column; nil without a grid.
void gridGetColumnCount(LispCall& call);
// (wex_grid_getrowcount tile) -> the number of the last row; 0 for another tile, nil for none.
void gridGetRowCount(LispCall& call);

// (wex_grid_clearcells tile top left bottom right [styles]) -> no value; nil without a grid or an argument.
// Empties the cells; with T or a number but 0 they lose all else that was set of them, too.
void gridClearCells(LispCall& call);

// (wex_grid_setjustification tile column code) -> nil. "C" centers, "R" is right, all else left. Aligns the
// cells that are there, but for those of the last row, and those of rows that come from a list.
void gridSetJustification(LispCall& call);

// (wex_grid_sortcolbytext tile column [ascending]) -> no value; nil without a grid or a column. No text
// moves.
void gridSortColByText(LispCall& call);
