#include "src/dialog/CurrentTile.h"

#include "src/dialog/TileWarnings.h"

WexDialog* dialogToWork() {
    WexDialog* dialog = currentDialog();
    if (!dialog) [[unlikely]]
        warnNoDialog();
    return dialog;
}

WexDialog* runningDialog() {
    WexDialog* dialog = dialogToWork();
    if (!dialog || dialog->m_hWnd) return dialog;
    warnNotStarted(*dialog);
    return nullptr;
}

CWnd* controlOf(const TileAddress& tile) {
    const WexDialog* dialog = runningDialog();
    return dialog ? dialog->itemFor(tile) : nullptr;
}

bool isOfClass(const CWnd* control, const wchar_t* className, TextId alert) {
    if (!control) return false;
    if (control->className() == className) return true;
    warnOtherKind(*control, alert == TEXT_NOT_A_GRID ? L"grids" : L"list controls");
    alertText(alert);
    return false;
}
