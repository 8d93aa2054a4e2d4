// The Lisp functions for selecting and sorting in list controls.
//
// Those that need a list control give nil where the tile has no control, and show an alert and give nil where
// it has one of another class.
#pragma once

#include "src/shell/LispCall.h"

// (wex_listctrl_allowsorting tile T) -> no value; nil without a second argument.
// From now on a click on a column's head sorts the rows. There is no way back: anything but T is an alert.
void listAllowSorting(LispCall& call);

// (wex_listctrl_getselectednths tile) -> the numbers of the selected rows in rising order; nil for none.
void listGetSelectedNths(LispCall& call);

// (wex_listctrl_enabledbclk tile flag) -> no value; nil without a second argument.
// With T, as at first, a double click presses OK; with anything else it does nothing. Also for list boxes,
// but for those before the dialog runs only.
void listEnableDblClick(LispCall& call);

// (wex_listctrl_keephighlight tile flag) -> no value; nil without a second argument.
// With T, as at first, the selection looks the same whether the list has the focus or not.
void listKeepHighlight(LispCall& call);
