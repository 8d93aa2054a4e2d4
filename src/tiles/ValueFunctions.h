// The Lisp functions that set and read what tiles show.
//
// A tile is named by its key (a string) or by its control id (a short). Anything else names no tile.
#pragma once

#include "src/shell/LispCall.h"

// (wex_set_tile tile value) -> no value; nil without a second argument.
// The value is a string, or an integer that becomes its decimal text; anything else is an empty text. Before
// the dialog runs it waits in the tile's record.
void setTile(LispCall& call);

// (wex_get_tile tile) -> the value as a string; nil where the tile has no control (so always before the
// dialog runs), no value without a current dialog.
void getTile(LispCall& call);

// (wex_mode_tile tile mode) -> no value; nil without a second argument.
// 0 enable, 1 disable, 2 focus, 3 select the text, 5 show, 6 hide.
void modeTile(LispCall& call);

// (wex_dimx_tile tile), (wex_dimy_tile tile) -> width or height of an image tile in pixels; 0 for any other
// tile.
void dimxTile(LispCall& call);
void dimyTile(LispCall& call);

// (wex_get_attr …) -> no value. It exists so that programs written for other dialogs load.
void getAttr(LispCall& call);
