// Warnings about the tile that a Lisp function was to work on.
#pragma once

#include "src/dialog/CurrentTile.h"
#include "src/dialog/WexDialog.h"

// The dialog's name as it is spelled.
CString spelledName(const WexDialog& dialog);
// A tile as a warning names it.
CString shownTile(const TileAddress& tile);
CString shownTile(const WexDialog& dialog, const CWnd& control);

// No dialog is current.
void warnNoDialog();
// The dialog has no window yet.
void warnNotStarted(const WexDialog& dialog);
// The dialog can't run without a template.
void warnUnlessTemplate(const WexDialog& dialog);
void warnUnknownTile(const WexDialog& dialog, const TileAddress& tile);
// The same for a tile without a key, which the dialog's template may have all the same.
void warnUnlessInTemplate(const WexDialog& dialog, const TileAddress& tile);
// The dialog runs, and the call comes too late.
void warnRuns(const WexDialog& dialog, const wchar_t* words);
// The function needs a tile of another kind, as "list controls". Where the dialog doesn't run yet its
// template tells.
void warnUnlessOfClass(const WexDialog& dialog, const TileAddress& tile,
                       std::span<const std::wstring_view> classes, const wchar_t* needed);
