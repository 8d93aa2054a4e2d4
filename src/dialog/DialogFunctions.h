// The Lisp functions that open, run and end dialogs and bind actions to their tiles.
#pragma once

#include "src/shell/LispCall.h"

// (wex_new_dialog name [position]) -> T; nil and an alert for an unknown name.
// Makes a dialog and makes it current. `position` is a point of two reals; it is kept and moves nothing.
// A name that isn't a string stands for the last name given.
void newDialog(LispCall& call);

// (wex_start_dialog) -> the status as an integer; no value where no dialog is current or its actions can't be
// written. Runs the current dialog to its end. The status is the number given to wex_done_dialog, and -1 if
// the dialog ended in any other way.
void startDialog(LispCall& call);

// (wex_done_dialog [status]) -> nil; no value where no dialog is current.
// Ends the current dialog when the action at hand is over. A status that isn't a short counts as 0.
void doneDialog(LispCall& call);

// (wex_action_tile tile text) -> T; nil without a second argument, no value where no dialog is current.
// Binds Lisp text to a tile. It works until the dialog starts; later calls change nothing that shows.
void actionTile(LispCall& call);

// (wex_setaction_oninit text), (wex_setaction_onsize text) -> no value.
// Bind Lisp text to the dialog's start and to its resizing, at which $value is the point (width height) of
// the client area. A text that isn't a string changes nothing.
void setActionOnInit(LispCall& call);
void setActionOnSize(LispCall& call);

// (wex_load_dialog …), (wex_unload_dialog …) -> nil. They exist so that programs written for other dialogs
// load: this product's dialogs are always there.
void answerNil(LispCall& call);
