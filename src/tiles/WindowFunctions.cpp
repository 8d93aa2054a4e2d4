#include "src/tiles/WindowFunctions.h"

#include "src/dialog/CurrentTile.h"
#include "src/dialog/ParentWindow.h"
#include "src/dialog/WexDialog.h"

namespace {

UINT iconOf(std::optional<int> code) {
    switch (code.value_or(0)) {
        case 1:
            return MB_ICONEXCLAMATION;
        case 2:
            return MB_ICONINFORMATION;
        case 3:
            return MB_ICONQUESTION;
        case 4:
            return MB_ICONHAND;
        default:
            return 0;
    }
}

}  // namespace

void alert(LispCall& call) {
    const CString text = call.textOrEmpty();
    const auto code = call.optionalShort();
    if (code && (*code < 0 || *code > 4)) call.warnOfArgument([&] { return noSuch(L"icon", *code); });
    const UINT icon = iconOf(code);
    const CWnd* owner = findParentWindow();
    MessageBoxW(owner ? owner->m_hWnd : nullptr, text.c_str(), resourceText(TEXT_ALERT_CAPTION).c_str(),
                MB_OK | icon);
    call.retNil();
}

void enableDialog(LispCall& call) {
    const bool enable = call.isNeitherNilNorZero();
    const WexDialog* dialog = runningDialog();
    if (dialog && dialog->isLive()) {
        dialog->EnableWindow(enable);
        if (enable) SetActiveWindow(dialog->m_hWnd);
    }
    call.retVoid();
}

void setTitleBar(LispCall& call) {
    const CString text = call.textOrEmpty();
    const WexDialog* dialog = runningDialog();
    if (dialog && dialog->isLive()) dialog->SetWindowText(text);
    call.retNil();
}
