// The way of an event from a control to Lisp: three symbols are set, and the action's function is called by
// name.
#pragma once

#include "src/platform/mfc/CWnd.h"

// Why an action runs, as $reason tells it.
enum EventReason : int16_t {
    REASON_PRESSED = 1,
    REASON_EDITED = 2,
    REASON_SCROLLED = 3,
    REASON_SELECTED = 4,
    REASON_ROWS = 5,  // of a list control: pressed, or a key released
    REASON_CELL_CHANGED = 7,
    REASON_DOUBLE_CLICKED = 10,
};

void setEventKey(const CString& key);
void setEventValue(const CString& text);
void setEventValuePoint(double x, double y);
// A list of the three. A row or column beyond a short is given as a long.
void setEventValueCell(int row, int column, const CString& text);
void setEventReason(int16_t reason);

// Calls the Lisp function of that name; nothing for an empty one. It may open, end or delete any dialog.
void callLispAction(const CString& name);

// The whole event of a tile: $key by the id of `control` in its dialog, $value, $reason, then the action.
// The control may be gone afterwards.
void publish(const CWnd& control, const CString& value, EventReason reason, const CString& action);
// The same with a cell as the value.
void publishCell(const CWnd& control, int row, int column, const CString& text, EventReason reason,
                 const CString& action);
