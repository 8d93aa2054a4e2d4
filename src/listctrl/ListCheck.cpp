#include "src/listctrl/ListCheck.h"

#include "src/dialog/WexDialog.h"

CWnd* controlOf(const TileAddress& tile) {
    const WexDialog* dialog = currentDialog();
    return dialog ? dialog->itemFor(tile) : nullptr;
}

bool isListControl(const CWnd* control) {
    if (!control) return false;
    if (control->className() == L"SysListView32") return true;
    alertText(TEXT_NOT_A_LIST_CONTROL);
    return false;
}

CWnd* listControlOf(const TileAddress& tile) {
    CWnd* control = controlOf(tile);
    return isListControl(control) ? control : nullptr;
}
