#include "src/listctrl/ListCheck.h"

bool isListControl(const CWnd* control) {
    return isOfClass(control, L"SysListView32", TEXT_NOT_A_LIST_CONTROL);
}

CWnd* listControlOf(const TileAddress& tile) {
    CWnd* control = controlOf(tile);
    return isListControl(control) ? control : nullptr;
}
