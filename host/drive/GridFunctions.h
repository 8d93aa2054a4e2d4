// What sessions ask a grid, and how they type into one.
#pragma once

#include <string>

#include "host/drive/GridWindow.h"
#include "host/drive/Tile.h"
#include "host/lisp/Interpreter.h"

// Data rows as strings, their cells from column 0 joined by tabs: from `first` on, counted from 0, to before
// `end`.
lisp::Value gridRows(lisp::Interpreter& lisp, const GridWindow& grid, int first, int end);

// (ui_cell tile row column): an association list, see docs/sessions.md.
lisp::Value cellLook(lisp::Call& call);

// (row column)
lisp::Value placeList(lisp::Interpreter& lisp, GridPlace place);

// The selected ranges, each as (top left bottom right).
lisp::Value selectedRanges(lisp::Interpreter& lisp, const GridTableLook& table);

// Types into the current cell. An empty text empties it.
void typeIntoGrid(const Tile& tile, const std::wstring& text);
