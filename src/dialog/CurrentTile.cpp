#include "src/dialog/CurrentTile.h"

#include "src/dialog/WexDialog.h"

CWnd* controlOf(const TileAddress& tile) {
    const WexDialog* dialog = currentDialog();
    return dialog ? dialog->itemFor(tile) : nullptr;
}

bool isOfClass(const CWnd* control, const wchar_t* className, TextId alert) {
    if (!control) return false;
    if (control->className() == className) return true;
    alertText(alert);
    return false;
}
