// The Lisp functions that fill list tiles: list boxes, combo boxes, list controls and grids.
#pragma once

#include "src/shell/LispCall.h"

// (wex_start_list tile [operation [index]]) -> no value.
// Operations: 3 new list (also where it isn't a short), 2 append, 1 change the selected entry, -1 change the
// selected row of a list control. The index is kept and has no effect.
void startList(LispCall& call);

// (wex_add_list item) -> no value. A string, or a list of strings up to the first element that is none.
// Before the dialog runs the items wait in the tile's record. An alert where no list was started.
void addList(LispCall& call);

// (wex_end_list [flag [number]]) -> nil. Both are kept for a grid tile: the flag is true for T and any short.
void endList(LispCall& call);
