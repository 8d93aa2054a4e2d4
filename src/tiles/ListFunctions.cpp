#include "src/tiles/ListFunctions.h"

#include "src/dialog/RowSelection.h"
#include "src/dialog/WexDialog.h"
#include "src/listctrl/ListRows.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// The messages of a class whose entries are single texts.
struct EntryMessages {
    const wchar_t* className;
    UINT reset, add, selected, remove, insert;
};

constexpr EntryMessages entryMessages[] = {
    {L"ListBox", LB_RESETCONTENT, LB_ADDSTRING, LB_GETCURSEL, LB_DELETESTRING, LB_INSERTSTRING},
    {L"ComboBox", CB_RESETCONTENT, CB_ADDSTRING, CB_GETCURSEL, CB_DELETESTRING, CB_INSERTSTRING},
};

const EntryMessages* messagesOf(const CWnd& control) {
    const CString& className = control.className();
    for (const EntryMessages& messages : entryMessages)
        if (className == messages.className) return &messages;
    return nullptr;
}

void emptyControl(const CWnd& control) {
    if (const EntryMessages* messages = messagesOf(control))
        control.SendMessage(messages->reset);
    else if (control.className() == L"SysListView32")
        control.SendMessage(LVM_DELETEALLITEMS);
}

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

void addRow(const CWnd& list, const wchar_t* text, int operation) {
    const int replaced = operation == LIST_CHANGE_ROW ? firstSelectedRow(list) : -1;
    if (replaced >= 0)
        replaceRow(list, replaced, text);
    else
        appendRow(list, text);
}

// The dialog is asked for with each item: an alert for the one before lets others run.
void addItem(const wchar_t* text) {
    const WexDialog* dialog = currentDialog();
    if (!dialog) return;
    CCtrlInfo* tile = dialog->m_listTile;
    if (!tile) return alertText(TEXT_NO_LIST_OPEN);
    if (!tile->m_control) return tile->m_listItems.push_back(text);
    const CWnd& control = *tile->m_control;
    const int operation = dialog->tileForControl(&control)->listOperation();
    if (const EntryMessages* messages = messagesOf(control))
        addEntry(control, *messages, text, operation);
    else if (control.className() == L"SysListView32")
        addRow(control, text, operation);
}

}  // namespace

void startList(LispCall& call) {
    const TileAddress address = call.tile();
    const int operation = call.shortNumber().value_or(LIST_NEW);
    const int index = call.shortNumber().value_or(-1);
    call.retVoid();
    WexDialog* dialog = currentDialog();
    if (!dialog) return;
    CCtrlInfo* tile = dialog->tileFor(address);
    if (const CWnd* control = dialog->itemFor(address)) {
        if (operation == LIST_NEW) emptyControl(*control);
        if (tile) tile->m_listItems.clear();
    }
    if (!tile) return;
    if (operation == LIST_NEW) tile->m_listItems.clear();
    dialog->m_listTile = tile;
    tile->m_listIndex = index;
    tile->setListOperation(operation);
}

void addList(LispCall& call) {
    call.retVoid();
    const HostValue* item = call.next();
    if (item->type == HV_STRING) return addItem(item->value.stringValue);
    if (item->type != HV_LIST_BEGIN) return;
    for (item = call.next(); item && item->type == HV_STRING; item = call.next())
        addItem(item->value.stringValue);
}

void endList(LispCall& call) {
    const HostValue* flag = call.next();
    const int number = call.shortNumber().value_or(-1);
    WexDialog* dialog = currentDialog();
    if (CCtrlInfo* tile = dialog ? dialog->m_listTile : nullptr) {
        tile->m_endListFlag = flag && (flag->type == HV_TRUE || flag->type == HV_SHORT);
        tile->m_endListIndex = number;
    }
    call.retNil();
}
