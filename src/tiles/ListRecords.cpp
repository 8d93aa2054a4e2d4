#include "src/tiles/ListRecords.h"

#include "src/platform/mfc/RedrawHold.h"

void applyListBox(const CWnd& listBox, const CCtrlInfo& tile) {
    holdRedraw(listBox.m_hWnd);
    // Each row goes to its own place, which gives what inserting at the top from the last to the first gives.
    for (size_t row = 0; row < tile.m_listItems.size(); ++row)
        listBox.sendStraight(LB_INSERTSTRING, row, reinterpret_cast<LPARAM>(tile.m_listItems[row].c_str()));
    const int selected = decimalNumber(tile.m_value);
    if (selected >= 0 && selected < listBox.SendMessage(LB_GETCOUNT))
        listBox.SendMessage(LB_SETCURSEL, selected);
}

void applyComboBox(const CWnd& comboBox, const CCtrlInfo& tile) {
    holdRedraw(comboBox.m_hWnd);
    for (const CString& row : tile.m_listItems)
        comboBox.sendStraight(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
    const int selected = decimalNumber(tile.m_value);
    if (!tile.m_value.IsEmpty() && selected < static_cast<int>(tile.m_listItems.size()))
        comboBox.SendMessage(CB_SETCURSEL, selected);
}
