#include "src/dialog/RowSelection.h"

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// The rows of a source are no items: only their state can be set.
bool hasItems(const CWnd& list) {
    const auto* tile = dynamic_cast<const TileControl*>(&list);
    return !tile || !tile->showsSourceRows();
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

}  // namespace

int firstSelectedRow(const CWnd& list) { return nextSelectedRow(list, -1); }

std::vector<int> selectedRows(const CWnd& list) {
    // The count comes at once, where looking for one more among a million rows takes its time.
    std::vector<int> rows(list.SendMessage(LVM_GETSELECTEDCOUNT));
    int at = -1;
    for (int& row : rows) row = at = nextSelectedRow(list, at);
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
