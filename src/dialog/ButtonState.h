// What the value of a button of any kind means: "1" and "0" are check states, and anything else a caption.
#pragma once

#include "src/dialog/CCtrlInfo.h"
#include "src/platform/mfc/CWnd.h"

void setButtonValue(CWnd& button, const CString& value, bool byKey);
// "1" for a button that is checked or in between, otherwise "0".
CString buttonValue(const CWnd& button);
// The check state that waits in a record.
void applyCheckState(const CWnd& button, const CCtrlInfo& tile);
