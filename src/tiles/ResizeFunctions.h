// The Lisp functions for dialogs that grow, and for moving controls.
#pragma once

#include "src/shell/LispCall.h"

// (wex_setresizing tile code) -> no value; nil with one argument. The tile's anchor code, see Anchors.h; it
// counts until the start action is over.
void setResizing(LispCall& call);

// (wex_setminresizing width height), (wex_setmaxresizing width height) -> no value; nil with one argument.
// The smallest size in pixels at 96 dots per inch, at least 50 by 50, and the largest in device pixels.
void setMinResizing(LispCall& call);
void setMaxResizing(LispCall& call);

// (wex_start_controlmove count), (wex_movecontrol tile x y width height), (wex_end_controlmove): move
// controls in one go. Client pixels. No value; wex_movecontrol gives nil where an argument or the control is
// missing.
void startControlMove(LispCall& call);
void moveControl(LispCall& call);
void endControlMove(LispCall& call);
