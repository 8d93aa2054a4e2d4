// The selected entry of a control whose entries are numbered.
#pragma once

#include "src/platform/mfc/CWnd.h"

// Selects the entry whose number that text is, by the messages of the control's class; an entry that isn't
// there is passed over.
inline void selectEntry(const CWnd& control, const CString& value, UINT countMessage, UINT selectMessage) {
    const int index = decimalNumber(value);
    if (index >= 0 && index < control.SendMessage(countMessage)) control.SendMessage(selectMessage, index);
}
