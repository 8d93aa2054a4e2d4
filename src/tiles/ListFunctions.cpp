#include "src/tiles/ListFunctions.h"

#include "src/dialog/WexDialog.h"

namespace {

// The dialog is asked for with each item: an alert for the one before lets others run.
void addItem(const CString& text) {
    const WexDialog* dialog = currentDialog();
    if (!dialog) return;
    CCtrlInfo* tile = dialog->m_listTile;
    if (!tile) return alertText(TEXT_NO_LIST_OPEN);
    if (!tile->m_control) return tile->m_listItems.push_back(text);
    CWnd& control = *tile->m_control;
    const ControlFamily* family = familyOfType(control.className());
    if (family && family->addEntry)
        family->addEntry(control, text.c_str(), dialog->tileForControl(&control)->listOperation());
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
    if (CWnd* control = dialog->itemFor(address)) {
        const ControlFamily* family = familyOfType(control->className());
        if (operation == LIST_NEW && family && family->emptyEntries)
            family->emptyEntries(*control, !address.isById());
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
    for (const CString& text : call.texts()) addItem(text);
}

void endList(LispCall& call) {
    const bool flag = call.isTrueOrShort();
    const int number = call.shortNumber().value_or(-1);
    call.retNil();
    WexDialog* dialog = currentDialog();
    CCtrlInfo* tile = dialog ? dialog->m_listTile : nullptr;
    if (!tile) return;
    tile->m_endListFlag = flag;
    tile->m_endListIndex = number;
    const ControlFamily* family = tile->m_control ? familyOfType(tile->m_controlType) : nullptr;
    if (family && family->endEntries) family->endEntries(*tile->m_control, *tile);
}
