// What a cell is for a person: how it is drawn, how it is edited, what it takes. Portable.
#pragma once

#include <string_view>

#include "src/platform/gridlib/CGXStyle.h"

enum class CellKind { header, text, wrappedText, choice, check, reading, face, pushFace };

// Looks and styles are with all that they inherit.
CellKind cellKind(const CellLook& look);
inline CellKind cellKind(const CGXStyle& style) { return cellKind(style.look()); }

// Whether a person may change the cell.
bool isEditable(const CellLook& look);
inline bool isEditable(const CGXStyle& style) { return isEditable(style.look()); }

// Whether numbers are shown with decimal places of the look's.
bool showsPlaces(const CellLook& look);

// Whether a person may give the cell that value: one of its choices, a tick or none, a number where the cell
// shows decimal places. An empty text is fine but for a check.
bool accepts(const CGXStyle& style, std::wstring_view text);

// The value as it is shown: a number with its decimal places, any other value as it is.
CString shownText(const CGXStyle& style);

// Of a check: whether it is ticked, and the values of the two states.
bool isTicked(const CGXStyle& style);
CString tickText(const CGXStyle& style, bool ticked);
