#include "src/tiles/ValueFunctions.h"

#include "src/dialog/CurrentTile.h"
#include "src/dialog/TileWarnings.h"
#include "src/dialog/WexDialog.h"
#include "src/platform/mfc/RedrawHold.h"
#include "src/tiles/WexButton.h"

namespace {

CString controlValue(CWnd& control) {
    auto* tile = dynamic_cast<TileControl*>(&control);
    return tile ? tile->value() : control.GetWindowText();
}

void disable(const CWnd& control, const WexDialog& dialog) {
    const bool hadFocus = control.holdsFocus();
    control.EnableWindow(false);
    if (hadFocus) dialog.SetFocus();
}

void focusByKey(const CWnd& control) {
    if (control.holdsFocus()) return;
    const HWND before = GetFocus();
    control.SetFocus();
    // From one button to another, the old one would keep its default look. It may be gone by now: the move of
    // the focus can run Lisp.
    const CWnd* old = CWnd::FromHandlePermanent(before);
    if (old && old->isLive() && old->IsKindOf(RUNTIME_CLASS(WexButton)) &&
        control.IsKindOf(RUNTIME_CLASS(WexButton)))
        old->SendMessage(BM_SETSTATE, FALSE);
}

// kept: by id the focus is only set where it is already.
void focusById(const CWnd& control, const WexDialog& dialog) {
    if (!control.holdsFocus())
        return warn(WARN_NO_EFFECT, L"mode 2 by an id moves no focus: give the tile's key");
    control.SetFocus();
    dialog.SendMessage(WM_PAINT);
}

void applyLiveMode(const CWnd& control, const WexDialog& dialog, const TileAddress& tile, int mode,
                   int editLimit) {
    switch (mode) {
        case MODE_ENABLE:
            return control.EnableWindow(true);
        case MODE_DISABLE:
            return disable(control, dialog);
        case MODE_FOCUS:
            return tile.isById() ? focusById(control, dialog) : focusByKey(control);
        case MODE_SELECT_TEXT:
            if (!control.IsKindOf(RUNTIME_CLASS(CEdit))) return warnOtherKind(control, L"edit boxes");
            control.SendMessage(EM_SETSEL, 0, editLimit);
            control.SendMessage(EM_SCROLLCARET);
            return;
        case MODE_SHOW:
        case MODE_HIDE:
            return showControl(control.m_hWnd, mode == MODE_SHOW);
        default:
            return;
    }
}

// Of a list it is the operation.
constexpr std::wstring_view CLASSES_OF_MODE_3[] = {L"Edit", L"ListBox", L"ComboBox", L"SysListView32",
                                                   L"GXWND"};

bool isMode(int mode) {
    const bool isControls = mode == -1;  // as the template has it
    return isControls || (mode >= MODE_ENABLE && mode <= MODE_HIDE && mode != MODE_NOTHING);
}

// The client area of an image tile in device pixels; empty for any other tile.
RECT imageTileArea(const TileAddress& tile) {
    const CWnd* control = controlOf(tile);
    if (!control) return {};
    if (control->GetRuntimeClass() == RUNTIME_CLASS(CButton)) return control->GetClientRect();
    warnOtherKind(*control, L"image tiles");
    return {};
}

}  // namespace

void setTile(LispCall& call) {
    const TileAddress tile = call.tile();
    const CString value = call.textOrDecimal();
    if (call.lacksArgument()) return call.retNil();
    if (WexDialog* dialog = dialogToWork()) dialog->setValueFor(tile, value);
    call.retVoid();
}

void getTile(LispCall& call) {
    const TileAddress tile = call.tile();
    if (!dialogToWork()) return call.retVoid();
    CWnd* control = controlOf(tile);
    if (!control) return call.retNil();
    warnUnlessTellsValue(*control);
    call.ret(controlValue(*control));
}

void modeTile(LispCall& call) {
    const TileAddress tile = call.tile();
    const auto mode = call.shortNumber();
    if (call.lacksArgument()) return call.retNil();
    WexDialog* dialog = dialogToWork();
    if (dialog && mode) {
        if (!isMode(*mode)) call.warnOfArgument([&] { return noSuch(L"mode", *mode); });
        CCtrlInfo* record = dialog->tileFor(tile);
        if (record) record->setMode(*mode);
        if (*mode == MODE_SELECT_TEXT && !dialog->m_hWnd)
            warnUnlessOfClass(*dialog, tile, CLASSES_OF_MODE_3, L"edit boxes");
        const CCtrlInfo unrecorded;
        if (const CWnd* control = dialog->itemFor(tile))
            applyLiveMode(*control, *dialog, tile, *mode, (record ? *record : unrecorded).m_editLimit);
    }
    call.retVoid();
}

void dimxTile(LispCall& call) {
    const RECT area = imageTileArea(call.tile());
    call.ret(area.right - area.left);
}

void dimyTile(LispCall& call) {
    const RECT area = imageTileArea(call.tile());
    call.ret(area.bottom - area.top);
}

void getAttr(LispCall& call) { call.retVoid(); }
