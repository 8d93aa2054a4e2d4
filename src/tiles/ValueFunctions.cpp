#include "src/tiles/ValueFunctions.h"

#include "src/dialog/WexDialog.h"
#include "src/platform/mfc/RedrawHold.h"
#include "src/tiles/WexButton.h"

namespace {

CString valueText(const HostValue& node) {
    switch (node.type) {
        case HV_STRING:
            return node.value.stringValue;
        case HV_SHORT:
            return std::to_wstring(node.value.shortValue);
        case HV_LONG:
            return std::to_wstring(node.value.longValue);
        default:
            return {};
    }
}

CString controlValue(const CWnd& control) {
    const auto number = [&](UINT message, WPARAM w = 0, LPARAM l = 0) {
        return std::to_wstring(static_cast<int>(control.SendMessage(message, w, l)));
    };
    if (control.IsKindOf(RUNTIME_CLASS(CButton))) return control.SendMessage(BM_GETCHECK) ? L"1" : L"0";
    if (control.IsKindOf(RUNTIME_CLASS(CListBox))) return number(LB_GETCURSEL);
    if (control.IsKindOf(RUNTIME_CLASS(CListCtrl)))
        return number(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    return control.GetWindowText();
}

void disable(const CWnd& control, const WexDialog& dialog) {
    const bool hadFocus = GetFocus() == control.m_hWnd;
    control.EnableWindow(false);
    if (hadFocus) dialog.SetFocus();
}

void focusByKey(const CWnd& control) {
    const HWND before = GetFocus();
    if (before == control.m_hWnd) return;
    control.SetFocus();
    // Between two buttons the old one would keep its default look. It may be gone: the focus move can run
    // Lisp.
    const CWnd* old = CWnd::FromHandlePermanent(before);
    if (old && old->isLive() && old->IsKindOf(RUNTIME_CLASS(WexButton)) &&
        control.IsKindOf(RUNTIME_CLASS(WexButton)))
        old->SendMessage(BM_SETSTATE, FALSE);
}

// kept: by id the focus is only set where it is already.
void focusById(const CWnd& control, const WexDialog& dialog) {
    if (GetFocus() != control.m_hWnd) return;
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
            if (!control.IsKindOf(RUNTIME_CLASS(CEdit))) return;
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

// The client area of an image tile in device pixels; empty for any other tile.
RECT imageTileArea(const TileAddress& tile) {
    const WexDialog* dialog = currentDialog();
    const CWnd* control = dialog ? dialog->itemFor(tile) : nullptr;
    if (!control || control->GetRuntimeClass() != RUNTIME_CLASS(CButton)) return {};
    return control->GetClientRect();
}

}  // namespace

void setTile(LispCall& call) {
    const TileAddress tile = call.tile();
    const HostValue* value = call.next();
    if (!value) return call.retNil();
    if (WexDialog* dialog = currentDialog()) {
        if (tile.isById())
            dialog->setValueById(tile.controlId(), valueText(*value));
        else
            dialog->setValueByKey(tile.key, valueText(*value));
    }
    call.retVoid();
}

void getTile(LispCall& call) {
    const TileAddress tile = call.tile();
    const WexDialog* dialog = currentDialog();
    if (!dialog) return call.retVoid();
    const CWnd* control = dialog->itemFor(tile);
    if (!control) return call.retNil();
    call.ret(controlValue(*control));
}

void modeTile(LispCall& call) {
    const TileAddress tile = call.tile();
    const HostValue* code = call.next();
    if (!code) return call.retNil();
    WexDialog* dialog = currentDialog();
    if (dialog && code->type == HV_SHORT) {
        const int mode = code->value.shortValue;
        CCtrlInfo* record = dialog->tileFor(tile);
        if (record) record->setMode(mode);
        const CCtrlInfo unrecorded;
        if (const CWnd* control = dialog->itemFor(tile))
            applyLiveMode(*control, *dialog, tile, mode, (record ? *record : unrecorded).m_editLimit);
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
