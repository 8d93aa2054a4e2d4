// The Lisp functions that fill a grid's cells and read them. All need a running dialog; a tile that is no
// grid gives an alert. Rows and columns are those of GridFunctions.h.
#pragma once

#include "src/shell/LispCall.h"

// (wex_grid_setcell tile row column code value [choices]) -> no value; nil without a grid, an argument or
// columns, and for the column -1. The code is that of CellCode.h for a text, and the number of decimal places
// for a real; a value of another type than string, number, T and nil changes no cell.
void gridSetCell(LispCall& call);

// (wex_grid_getcell tile row column) -> the cell's value as text, unformatted; nil without a grid or an
// argument.
void gridGetCell(LispCall& call);

// (wex_grid_setrow tile row text [merge vertical]) -> nil. Lays the text's fields across the row, which is
// written as read only. A merge flag without a vertical code changes nothing.
void gridSetRow(LispCall& call);

// (wex_grid_addrow tile text [merge [vertical]]) -> the number of the new row; nil without a grid or a text.
void gridAddRow(LispCall& call);
