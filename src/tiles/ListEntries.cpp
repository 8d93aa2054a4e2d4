#include "src/tiles/ListEntries.h"

#include "src/dialog/EntrySelection.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

struct EntryMessages {
    UINT add, selected, remove, insert;
};

constexpr EntryMessages LIST_BOX_MESSAGES{LB_ADDSTRING, LB_GETCURSEL, LB_DELETESTRING, LB_INSERTSTRING};
constexpr EntryMessages COMBO_BOX_MESSAGES{CB_ADDSTRING, CB_GETCURSEL, CB_DELETESTRING, CB_INSERTSTRING};

void addEntry(const CWnd& control, const EntryMessages& messages, const wchar_t* text, int operation) {
    const auto entry = reinterpret_cast<LPARAM>(text);
    holdRedraw(control.m_hWnd);
    if (operation != LIST_CHANGE) {
        control.sendStraight(messages.add, 0, entry);
        return;
    }
    // With nothing selected the index is -1: the delete fails, and the insert appends.
    const LRESULT selected = control.sendStraight(messages.selected);
    control.sendStraight(messages.remove, selected);
    control.sendStraight(messages.insert, selected, entry);
}

}  // namespace

void applyListBox(const CWnd& listBox, const CCtrlInfo& tile) {
    if (!tile.m_listItems.empty()) holdRedraw(listBox.m_hWnd);
    // Inserting in order gives the same rows as inserting in reverse at the top, and is faster.
    for (size_t row = 0; row < tile.m_listItems.size(); ++row)
        listBox.sendStraight(LB_INSERTSTRING, row, reinterpret_cast<LPARAM>(tile.m_listItems[row].c_str()));
    selectEntry(listBox, tile.m_value, LB_GETCOUNT, LB_SETCURSEL, Entries::complete);
}

void applyComboBox(const CWnd& comboBox, const CCtrlInfo& tile) {
    if (!tile.m_listItems.empty()) holdRedraw(comboBox.m_hWnd);
    for (const CString& row : tile.m_listItems)
        comboBox.sendStraight(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
    const int selected = decimalNumber(tile.m_value);
    if (!tile.m_value.IsEmpty() && selected < static_cast<int>(tile.m_listItems.size()))
        comboBox.SendMessage(CB_SETCURSEL, selected);
    else if (selected > 0 && selected >= comboBox.SendMessage(CB_GETCOUNT))
        warnNoEntry(comboBox, tile.m_value, Entries::complete);
}

void setListBoxValue(CWnd& listBox, const CString& value, bool /*byKey*/) {
    selectEntry(listBox, value, LB_GETCOUNT, LB_SETCURSEL, Entries::mayWait);
}

void setComboBoxValue(CWnd& comboBox, const CString& value, bool /*byKey*/) {
    selectEntry(comboBox, value, CB_GETCOUNT, CB_SETCURSEL, Entries::mayWait);
}

void emptyListBox(CWnd& listBox, bool /*byKey*/) { listBox.SendMessage(LB_RESETCONTENT); }

void emptyComboBox(CWnd& comboBox, bool /*byKey*/) { comboBox.SendMessage(CB_RESETCONTENT); }

void addToListBox(CWnd& listBox, const wchar_t* entry, int operation) {
    addEntry(listBox, LIST_BOX_MESSAGES, entry, operation);
}

void addToComboBox(CWnd& comboBox, const wchar_t* entry, int operation) {
    addEntry(comboBox, COMBO_BOX_MESSAGES, entry, operation);
}
