// What a cell is for a person: how it is drawn, how it is edited, what it takes. Portable.
#pragma once

#include <string_view>

#include "src/platform/gridlib/CGXStyle.h"

enum class CellKind { header, text, wrappedText, choice, check, reading, face, pushFace };

// `style` with all that it inherits.
CellKind cellKind(const CGXStyle& style);

// Whether a person may change the cell.
bool isEditable(const CGXStyle& style);

// Whether a person may give the cell that value: one of its choices, a tick or none, a number where the cell
// shows decimal places. An empty text is fine but for a check.
bool accepts(const CGXStyle& style, std::wstring_view text);

// The value as it is shown: a number with its decimal places, any other value as it is.
CString shownText(const CGXStyle& style);

// Of a check: whether it is ticked, and the values of the two states.
bool isTicked(const CGXStyle& style);
CString tickText(const CGXStyle& style, bool ticked);
