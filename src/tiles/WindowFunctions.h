// The Lisp functions for the dialog's window and for messages to the person.
#pragma once

#include "src/shell/LispCall.h"

// (wex_alert text [icon]) -> nil. A message box with OK. Icons: 1 exclamation, 2 information, 3 question, 4
// stop.
void alert(LispCall& call);

// (wex_enable_dialog [flag]) -> no value. 0 and nil disable the current dialog's window; anything else, and
// no argument, enables and activates it.
void enableDialog(LispCall& call);

// (wex_settitlebar text) -> nil. Sets the current dialog's title while it has a window.
void setTitleBar(LispCall& call);
