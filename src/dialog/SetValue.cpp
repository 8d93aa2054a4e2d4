// Setting a tile's value: in its control, as the control's family does it, and in its record.
#include "src/dialog/TileWarnings.h"
#include "src/dialog/WexDialog.h"

void WexDialog::setControlValue(CWnd* control, const CString& value, bool byKey) {
    if (!control) return;
    const ControlFamily* family = familyOfType(control->className());
    if (family && family->setValue) return family->setValue(*control, value, byKey);
    control->SetWindowText(value);
    // At the start a grid takes it as a row.
    if (m_hasApplied) warnUnlessShowsValue(*control);
}

bool WexDialog::isOwnTitle(const CString& key) const {
    return key == m_name || equalIgnoringCase(key, L"main_title");
}

void WexDialog::setValueFor(const TileAddress& tile, const CString& value) {
    if (tile.isById())
        setValueById(tile.controlId(), value);
    else
        setValueByKey(tile.key, value);
}

void WexDialog::setValueByKey(const CString& key, const CString& value) {
    const bool isTitle = isOwnTitle(key);
    if (isTitle) {
        if (isLive())
            SetWindowText(value);
        else
            m_title = value;
    }
    CWnd* control = itemForKey(key);
    setControlValue(control, value, true);
    CCtrlInfo* tile = tileForKey(key);
    if (tile) tile->m_value = value;
    if (!control && !isTitle) checkTile({.key = key}, tile);
}

void WexDialog::setValueById(int id, const CString& value) {
    CWnd* control = itemForId(id);
    setControlValue(control, value, false);
    CCtrlInfo* tile = tileForId(id);
    if (!control) checkTile({.key = {}, .id = static_cast<uint32_t>(id)}, tile);
    if (tile->m_key.IsEmpty()) tile->m_key = keyForId(id);
    tile->m_value = value;
}
