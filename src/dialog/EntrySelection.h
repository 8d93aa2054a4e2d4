// The selected entry of a control whose entries are numbered.
#pragma once

#include "src/platform/mfc/CWnd.h"

// While a dialog starts, the entries of some controls come after the value, which is then set once more.
enum class Entries { complete, mayWait };

// Tell the author of a value that names no entry of the control, and of one that isn't a number and counts as
// 0.
void warnNoEntry(const CWnd& control, const CString& value, Entries entries);
void warnUnlessNumber(const CString& value);

// Selects the entry whose number that text is, by the messages of the control's class; an entry that isn't
// there is passed over.
inline void selectEntry(const CWnd& control, const CString& value, UINT countMessage, UINT selectMessage,
                        Entries entries) {
    const int index = decimalNumber(value);
    if (index >= 0 && index < control.SendMessage(countMessage))
        control.SendMessage(selectMessage, index);
    else if (index > 0)
        warnNoEntry(control, value, entries);
    if (index == 0) warnUnlessNumber(value);
}
