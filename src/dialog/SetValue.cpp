// Setting a tile's value: in its control, as the control's family does it, and in its record.
#include "src/dialog/WexDialog.h"

void WexDialog::setControlValue(CWnd* control, const CString& value, bool byKey) {
    if (!control) return;
    const ControlFamily* family = familyOfType(control->className());
    if (family && family->setValue)
        family->setValue(*control, value, byKey);
    else
        control->SetWindowText(value);
}

void WexDialog::setValueFor(const TileAddress& tile, const CString& value) {
    if (tile.isById())
        setValueById(tile.controlId(), value);
    else
        setValueByKey(tile.key, value);
}

void WexDialog::setValueByKey(const CString& key, const CString& value) {
    if (key == m_name || equalIgnoringCase(key, L"main_title")) {
        if (isLive())
            SetWindowText(value);
        else
            m_title = value;
    }
    setControlValue(itemForKey(key), value, true);
    if (CCtrlInfo* tile = tileForKey(key)) tile->m_value = value;
}

void WexDialog::setValueById(int id, const CString& value) {
    setControlValue(itemForId(id), value, false);
    CCtrlInfo* tile = tileForId(id);
    if (tile->m_key.IsEmpty()) tile->m_key = keyForId(id);
    tile->m_value = value;
}
