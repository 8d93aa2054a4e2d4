// The Lisp functions that shape a list control and fill it. All need a running dialog, but for
// wex_listctrl_setcolumns. A tile that is no list control gives an alert.
#pragma once

#include "src/shell/LispCall.h"

// (wex_listctrl_addcolumn tile title [width]) -> no value; nil without a list control or a title.
// The column comes last. The width is in pixels at 96 dots per inch; 75 for none and for -1.
void listAddColumn(LispCall& call);

// (wex_listctrl_additem tile [row [column]] text), also wex_listctrl_setitem -> no value; nil without a list
// control or a text. Sets that cell of a row that is there, otherwise adds the text as a row, its cells
// separated by tabs. Anything else in the text's place is an empty text.
void listAddItem(LispCall& call);

// (wex_listctrl_setcolumnwidth tile column [width]) -> no value; nil without a list control or a column.
// Device pixels; -2 fits the contents, -1 and none the title.
void listSetColumnWidth(LispCall& call);

// (wex_listctrl_getcolumnwidth tile column) -> the width in pixels at 96 dots per inch, 0 where there is no
// such column; nil without a list control or a number.
void listGetColumnWidth(LispCall& call);

// (wex_listctrl_showgridlines tile T) -> no value; nil without a list control or an argument. Anything else
// than T gives an alert: the lines stay.
void listShowGridLines(LispCall& call);

// (wex_listctrl_setcolumns tile columns) -> no value; nil without a second argument. Titles behind tabs.
// Before the dialog runs the text waits in the tile's record. A list that has columns keeps them. Two alerts
// for another tile.
void listSetColumns(LispCall& call);

// (wex_listctrl_setcolumnreference tile columns) -> no value; nil without a second argument. Keeps the text,
// and loads the rows that waited for the start anew. An empty text does nothing. Two alerts for another tile.
void listSetColumnReference(LispCall& call);

// (wex_listctrl_deletecolumn tile column) -> no value; nil without a list control or a column.
void listDeleteColumn(LispCall& call);

// (wex_listctrl_renamecolumn tile column title) -> no value; nil without a list control, a column or a title.
void listRenameColumn(LispCall& call);

// (wex_listctrl_getcolcount tile) -> the number of columns; nil without a list control. Two alerts for
// another tile.
void listGetColCount(LispCall& call);

// (wex_listctrl_setitemcount tile count) -> no value; nil without a list control or a second argument. For
// lists that have no items of their own; a count of -1 or of another type does nothing.
void listSetItemCount(LispCall& call);
