// Cells on the platform's clipboard.
#pragma once

#include <windows.h>

#include <optional>

#include "src/platform/gridlib/CellsText.h"

// Puts them there as text and as a table in HTML. False, with what is on it left, while another program has
// the clipboard.
bool putOnClipboard(HWND owner, const CellRows& rows);

// The cells of the text that is there; nothing where there is none.
std::optional<CellRows> cellsOnClipboard(HWND owner);
