#include "src/listctrl/SelectionFunctions.h"

#include "src/dialog/TileWarnings.h"
#include "src/listctrl/ListCheck.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/WexListCtrl.h"

namespace {

constexpr std::wstring_view LIST_CLASSES[] = {L"SysListView32", L"ListBox"};

// A list view beyond the ids that are walked isn't wrapped, and has no flags.
WexListCtrl* wrapperOf(CWnd* list) { return dynamic_cast<WexListCtrl*>(list); }

}  // namespace

void listAllowSorting(LispCall& call) {
    CWnd* list = listControlOf(call.tile());
    const bool allow = call.isTrue();
    if (!list || call.lacksArgument()) return call.retNil();
    call.retVoid();
    if (!allow) {
        warn(WARN_NO_EFFECT, L"only T is understood: sorting can't be taken back");
        return alertText(TEXT_UNUSABLE_FOR_LIST_CONTROL);
    }
    if (list->GetStyle() & LVS_OWNERDATA)
        warn(WARN_OTHER_KIND, L"the list is a virtual one, which has no rows that could be sorted");
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
    WexDialog* dialog = dialogToWork();
    if (!dialog) return;
    if (!dialog->m_hWnd) warnUnlessOfClass(*dialog, address, LIST_CLASSES, L"list controls and list boxes");
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
