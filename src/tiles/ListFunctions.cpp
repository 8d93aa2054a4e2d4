#include "src/tiles/ListFunctions.h"

#include "src/dialog/TileWarnings.h"

namespace {

constexpr wchar_t NO_LIST[] = L"no list is open: wex_start_list opens one";
constexpr wchar_t LIST_TILES[] = L"list boxes, combo boxes, list controls and grids";
constexpr std::wstring_view LIST_CLASSES[] = {L"ListBox", L"ComboBox", L"SysListView32", L"GXWND"};

bool isOperation(int operation) {
    return operation == LIST_CHANGE_ROW || (operation >= LIST_CHANGE && operation <= LIST_NEW);
}

// The dialog is asked for with each item: an alert for the one before lets others run.
void addItem(const wchar_t* text) {
    const WexDialog* dialog = dialogToWork();
    if (!dialog) return;
    CCtrlInfo* tile = dialog->m_listTile;
    if (!tile) {
        warn(WARN_NOT_NOW, NO_LIST);
        return alertText(TEXT_NO_LIST_OPEN);
    }
    if (!tile->m_control) {
        tile->m_listItems.emplace_back(text);
        return;
    }
    CWnd& control = *tile->m_control;
    const ControlFamily* family = familyOfType(control.className());
    if (family && family->addEntry)
        family->addEntry(control, text, dialog->tileForControl(&control)->listOperation());
    else
        warnOtherKind(control, L"list boxes, combo boxes and list controls");
}

}  // namespace

void startList(LispCall& call) {
    const TileAddress address = call.tile();
    const int operation = call.shortOr(LIST_NEW);
    if (!isOperation(operation)) call.warnOfArgument([=] { return noSuch(L"list operation", operation); });
    const int index = call.shortOr(-1);
    if (operation == LIST_CHANGE && index != -1)
        call.warnOfArgument(
            [] { return CString(L"the entry that changes is the selected one, not this one"); });
    call.retVoid();
    WexDialog* dialog = dialogToWork();
    if (!dialog) return;
    if (operation == LIST_CHANGE && !dialog->hasApplied())
        warn(WARN_NO_EFFECT,
             L"operation 1 before the dialog has started only makes it start with a disabled tile");
    if (dialog->m_isListOpen) warn(WARN_NOT_NOW, L"another list is still open: wex_end_list closes it");
    CCtrlInfo* tile = dialog->tileFor(address);
    if (!dialog->m_hWnd) warnUnlessOfClass(*dialog, address, LIST_CLASSES, LIST_TILES);
    if (CWnd* control = dialog->itemFor(address)) {
        const ControlFamily* family = familyOfType(control->className());
        if (!family || !family->emptyEntries) warnOtherKind(*control, LIST_TILES);
        if (operation == LIST_NEW && family && family->emptyEntries)
            family->emptyEntries(*control, !address.isById());
        if (tile) tile->m_listItems.clear();
    }
    if (!tile) return;
    if (operation == LIST_NEW) tile->m_listItems.clear();
    dialog->m_listTile = tile;
    dialog->m_isListOpen = true;
    tile->m_listIndex = index;
    tile->setListOperation(operation);
}

void addList(LispCall& call) {
    call.retVoid();
    call.forEachText(addItem);
}

void endList(LispCall& call) {
    const bool flag = call.isTrueOrShort();
    const int number = call.shortOr(-1);
    call.retNil();
    WexDialog* dialog = dialogToWork();
    if (!dialog) return;
    CCtrlInfo* tile = dialog->m_listTile;
    if (!dialog->m_isListOpen) warn(WARN_NOT_NOW, NO_LIST);
    dialog->m_isListOpen = false;
    if (!tile) return;
    tile->m_endListFlag = flag;
    tile->m_endListIndex = number;
    const ControlFamily* family = tile->m_control ? familyOfType(tile->m_controlType) : nullptr;
    if (family && family->endEntries) family->endEntries(*tile->m_control, *tile);
}
