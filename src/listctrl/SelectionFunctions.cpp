#include "src/listctrl/SelectionFunctions.h"

#include "src/dialog/WexDialog.h"
#include "src/listctrl/ListCheck.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/WexListCtrl.h"

namespace {

// A list view beyond the ids that are walked isn't wrapped, and has no flags.
WexListCtrl* wrapperOf(CWnd* list) { return dynamic_cast<WexListCtrl*>(list); }

}  // namespace

void listAllowSorting(LispCall& call) {
    CWnd* list = listControlOf(call.tile());
    const bool allow = call.isTrue();
    if (!list || call.lacksArgument()) return call.retNil();
    call.retVoid();
    if (!allow) return alertText(TEXT_UNUSABLE_FOR_LIST_CONTROL);
    if (WexListCtrl* wrapper = wrapperOf(list)) wrapper->m_allowSorting = true;
}

void listGetSelectedNths(LispCall& call) {
    const CWnd* list = listControlOf(call.tile());
    call.ret(list ? selectedRows(*list) : std::vector<int>());
}

void listEnableDblClick(LispCall& call) {
    const TileAddress address = call.tile();
    const bool enable = call.isTrue();
    if (call.lacksArgument()) return call.retNil();
    call.retVoid();
    WexDialog* dialog = currentDialog();
    if (!dialog) return;
    if (CCtrlInfo* tile = dialog->tileFor(address)) tile->m_dblClickEnabled = enable;
    CWnd* control = dialog->itemFor(address);
    if (!control) return;
    if (!isListControl(control)) return alertText(TEXT_UNUSABLE_FOR_LIST_CONTROL);
    if (WexListCtrl* wrapper = wrapperOf(control)) wrapper->m_enableDblClk = enable;
}

void listKeepHighlight(LispCall& call) {
    CWnd* list = listControlOf(call.tile());
    const bool keep = call.isTrue();
    if (!list || call.lacksArgument()) return call.retNil();
    call.retVoid();
    if (WexListCtrl* wrapper = wrapperOf(list)) wrapper->m_keepHighlight = keep;
}
