#include "src/listctrl/RowSelection.h"

#include "src/listctrl/WexListCtrl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// The rows of a source are no items: only their state can be set.
bool hasItems(const CWnd& list) {
    const auto* wrapper = dynamic_cast<const WexListCtrl*>(&list);
    return !wrapper || !wrapper->m_dataSource;
}

void setRowState(const CWnd& list, int row, UINT state, UINT mask) {
    LVITEMW item = {};
    item.mask = LVIF_STATE;
    item.iItem = row;
    item.state = state;
    item.stateMask = mask;
    if (hasItems(list))
        list.SendMessage(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    else
        list.SendMessage(LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
}

int nextSelectedRow(const CWnd& list, int from) {
    return static_cast<int>(list.SendMessage(LVM_GETNEXTITEM, from, LVNI_SELECTED));
}

// Comes at once, where looking for one more row among a million takes its time.
int selectedCount(const CWnd& list) { return static_cast<int>(list.SendMessage(LVM_GETSELECTEDCOUNT)); }

}  // namespace

int firstSelectedRow(const CWnd& list) { return selectedCount(list) > 0 ? nextSelectedRow(list, -1) : -1; }

std::vector<int> selectedRows(const CWnd& list) {
    std::vector<int> rows;
    int left = selectedCount(list);
    for (int at = -1; left > 0 && (at = nextSelectedRow(list, at)) >= 0; --left) rows.push_back(at);
    return rows;
}

void selectRow(const CWnd& list, int row) {
    if (row < 0 || row >= list.SendMessage(LVM_GETITEMCOUNT)) return;
    const UINT state = hasItems(list) ? LVIS_SELECTED : LVIS_SELECTED | LVIS_FOCUSED;
    setRowState(list, row, state, state);
    releaseRedraw();  // a list whose redraw is held doesn't scroll
    list.SendMessage(LVM_ENSUREVISIBLE, row, TRUE);
}

void clearSelection(const CWnd& list) {
    for (const int row : selectedRows(list)) setRowState(list, row, 0, LVIS_SELECTED);
}
