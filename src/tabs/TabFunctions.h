// The Lisp function for dialogs with pages.
#pragma once

#include "src/shell/LispCall.h"

// (wex_tab_add tile title [control …]) -> no value; nil with one argument. Adds a tab whose page has the
// controls, each named by its key or id. A title that isn't a string is empty.
void tabAdd(LispCall& call);
