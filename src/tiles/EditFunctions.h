// The Lisp functions for edit boxes.
#pragma once

#include "src/shell/LispCall.h"

// (wex_edit_setasnumeric tile unit precision), (wex_edit_setasangular tile unit precision) -> nil.
// Make an edit box that is there already, so from the start action on, take distances or angles alone. Units:
// see HostUnits.h. An argument that isn't a short counts as -1.
void editSetAsNumeric(LispCall& call);
void editSetAsAngular(LispCall& call);

// (wex_edit_seteditlimit tile limit) -> nil. The most characters that can be typed. Before the dialog runs
// the limit waits in the record, and is then also how far mode 3 selects. A limit that isn't a short changes
// nothing.
void editSetEditLimit(LispCall& call);
