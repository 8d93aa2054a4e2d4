#include "src/dialog/RowSelection.h"

#include "src/dialog/TileControl.h"

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

}  // namespace

void selectRow(const CWnd& list, int row) {
    if (row < 0 || row >= list.SendMessage(LVM_GETITEMCOUNT)) return;
    const UINT state = hasItems(list) ? LVIS_SELECTED : LVIS_SELECTED | LVIS_FOCUSED;
    setRowState(list, row, state, state);
    list.SendMessage(LVM_ENSUREVISIBLE, row, TRUE);
}

void clearSelection(const CWnd& list) {
    const auto next = [&](int from) {
        return static_cast<int>(list.SendMessage(LVM_GETNEXTITEM, from, LVNI_SELECTED));
    };
    for (int row = next(-1); row >= 0; row = next(row)) setRowState(list, row, 0, LVIS_SELECTED);
}
