// The list control that a Lisp function works on.
#pragma once

#include "src/dialog/CurrentTile.h"

// Whether there is a control and it is a list control. An alert for a control of another class.
bool isListControl(const CWnd* control);

// The control of a tile if it is a list control, otherwise null. An alert for a control of another class.
CWnd* listControlOf(const TileAddress& tile);
