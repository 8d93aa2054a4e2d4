// What a person sees of a tile.
#pragma once

#include "host/drive/Tile.h"
#include "host/lisp/Interpreter.h"

// An association list of strings to values: "class", "enabled", "visible", "focus", "checked" (nil for a
// control that can't be), "rect" as (left top width height) in the dialog's client pixels, "selected" as a
// list.
lisp::Value lookOf(lisp::Interpreter& lisp, const Tile& tile);
