// What a person sees of a tile and of a dialog.
#pragma once

#include "host/drive/MessageBoxes.h"
#include "host/drive/Tile.h"
#include "host/lisp/Interpreter.h"

// An association list of strings to values: "class", "enabled", "visible", "focus", "checked" (nil for a
// control that can't be), "rect" as (left top width height) in the dialog's client pixels, "selected" as a
// list, "gridlines" (of a list view); of a tree and a grid what docs/sessions.md tells, too.
lisp::Value lookOf(lisp::Interpreter& lisp, const Tile& tile);

// The color of a point of the tile, counted in pixels from its left upper corner, as 0xRRGGBB. Throws
// lisp::Error for a point that the dialog's client area doesn't have.
lisp::Value pixelOf(const Tile& tile, int x, int y);

// The same of a dialog: "class", "title", "owner" (the title of the window that it belongs to; nil without
// one), "enabled", "rect" in pixels of the screen, "client" as (width height), "controls" as the ids of the
// controls, the topmost first.
lisp::Value lookOf(lisp::Interpreter& lisp, HWND dialog);

// The same of a message box: "title", "icon" and "owner"; nil for what it doesn't have.
lisp::Value lookOf(lisp::Interpreter& lisp, const BoxLook& box);
