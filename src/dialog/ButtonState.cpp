#include "src/dialog/ButtonState.h"

namespace {

bool isCheckState(const CString& value) { return value == L"1" || value == L"0"; }

}  // namespace

void setButtonValue(CWnd& button, const CString& value, bool /*byKey*/) {
    if (isCheckState(value))
        button.SendMessage(BM_SETCHECK, value == L"1");
    else
        button.SetWindowText(value);
}

CString buttonValue(const CWnd& button) { return button.SendMessage(BM_GETCHECK) ? L"1" : L"0"; }

void applyCheckState(const CWnd& button, const CCtrlInfo& tile) {
    if (isCheckState(tile.m_value)) button.SendMessage(BM_SETCHECK, tile.m_value == L"1");
}
