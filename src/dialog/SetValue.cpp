// Setting a tile's value: in its control, by the control's class, and in its record.
#include "src/dialog/RowSelection.h"
#include "src/dialog/TileValue.h"
#include "src/dialog/WexDialog.h"

namespace {

void setButton(const CWnd& button, const CString& value) {
    if (value == L"1" || value == L"0")
        button.SendMessage(BM_SETCHECK, value == L"1");
    else
        button.SetWindowText(value);
}

// Selects an entry that exists; any other number is passed over.
void select(const CWnd& control, const CString& value, UINT countMessage, UINT selectMessage) {
    const int index = decimalNumber(value);
    if (index >= 0 && index < control.SendMessage(countMessage)) control.SendMessage(selectMessage, index);
}

// kept: only the key path clears the selection by a negative row.
void setListControl(const CWnd& list, const CString& value, bool byKey) {
    const int row = decimalNumber(value);
    if (row >= 0)
        selectRow(list, row);
    else if (byKey)
        clearSelection(list);
}

}  // namespace

void WexDialog::setControlValue(CWnd* control, const CString& value, bool byKey) {
    if (!control) return;
    switch (valueMeaning(control->className())) {
        case ValueMeaning::buttonState:
            return setButton(*control, value);
        case ValueMeaning::listControlRow:
            return setListControl(*control, value, byKey);
        // kept: the controls of the page that was shown stay.
        case ValueMeaning::tab:
            return select(*control, value, TCM_GETITEMCOUNT, TCM_SETCURSEL);
        case ValueMeaning::listBoxEntry:
            return select(*control, value, LB_GETCOUNT, LB_SETCURSEL);
        case ValueMeaning::comboBoxEntry:
            return select(*control, value, CB_GETCOUNT, CB_SETCURSEL);
        case ValueMeaning::text:
            return control->SetWindowText(value);
    }
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
