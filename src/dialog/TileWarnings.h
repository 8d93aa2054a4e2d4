// Warnings about the tile that a Lisp function was to work on.
#pragma once

#include "src/dialog/CurrentTile.h"
#include "src/dialog/WexDialog.h"

// The dialog's name as it is spelled.
CString spelledName(const WexDialog& dialog);
// A tile as a warning names it.
CString shownTile(const TileAddress& tile);
CString shownTile(const WexDialog& dialog, const CWnd& control);
// Of the current dialog, where there is one.
CString shownTile(const CWnd& control);

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
// An action of the tile would never run.
void warnUnlessHasEvents(const WexDialog& dialog, const TileAddress& tile);
// The value of such a control is the text of its window, which nobody sees.
void warnUnlessShowsValue(const CWnd& control);
// The same of one that is read: a tab control doesn't tell its page either.
void warnUnlessTellsValue(const CWnd& control);
// A row's text has more fields than the table has columns for them.
void warnSurplusFields(const CWnd& table, size_t fields, size_t columns);
// The function needs a tile of another kind, as "list controls". Where the dialog doesn't run yet its
// template tells.
void warnUnlessOfClass(const WexDialog& dialog, const TileAddress& tile,
                       std::span<const std::wstring_view> classes, const wchar_t* needed);
