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

// One row of a list without items, which may have a million.
bool selectsOneOfMany(const CWnd& list) {
    constexpr DWORD styles = LVS_OWNERDATA | LVS_SINGLESEL;
    return (list.GetStyle() & styles) == styles;
}

bool isSelected(const CWnd& list, int row) { return list.SendMessage(LVM_GETITEMSTATE, row, LVIS_SELECTED); }

int nextSelectedRow(const CWnd& list, int from) {
    return static_cast<int>(list.SendMessage(LVM_GETNEXTITEM, from, LVNI_SELECTED));
}

// Comes at once, where looking for one more row among a million takes its time.
int selectedCount(const CWnd& list) { return static_cast<int>(list.SendMessage(LVM_GETSELECTEDCOUNT)); }

}  // namespace

int firstSelectedRow(const CWnd& list) {
    const int count = selectedCount(list);
    if (count == 0) return -1;
    // A single one is mostly where the last selection was made, and needn't be looked for among a million.
    const auto mark = static_cast<int>(list.SendMessage(LVM_GETSELECTIONMARK));
    return count == 1 && mark >= 0 && isSelected(list, mark) ? mark : nextSelectedRow(list, -1);
}

std::vector<int> selectedRows(const CWnd& list) {
    std::vector<int> rows;
    int left = selectedCount(list);
    if (left == 1) return {firstSelectedRow(list)};
    for (int at = -1; left > 0 && (at = nextSelectedRow(list, at)) >= 0; --left) rows.push_back(at);
    return rows;
}

void selectRow(const CWnd& list, int row) {
    if (row < 0 || row >= list.SendMessage(LVM_GETITEMCOUNT)) return;
    const UINT state = hasItems(list) ? LVIS_SELECTED : LVIS_SELECTED | LVIS_FOCUSED;
    const SelectionMove move(list);
    setRowState(list, row, state, state);
    if (!hasItems(list)) list.SendMessage(LVM_SETSELECTIONMARK, 0, row);
    releaseRedraw();  // a list whose redraw is held doesn't scroll
    list.SendMessage(LVM_ENSUREVISIBLE, row, TRUE);
}

void selectAllRows(const CWnd& list) {
    constexpr WPARAM ALL = static_cast<WPARAM>(-1);
    LVITEMW item{};
    item.state = item.stateMask = LVIS_SELECTED;
    list.SendMessage(LVM_SETITEMSTATE, ALL, reinterpret_cast<LPARAM>(&item));
}

void clearSelection(const CWnd& list) {
    for (const int row : selectedRows(list)) setRowState(list, row, 0, LVIS_SELECTED);
}

SelectionMove::SelectionMove(const CWnd& list)
    : m_list(list), m_row(selectsOneOfMany(list) ? firstSelectedRow(list) : -1) {
    if (m_row >= 0) setRowState(list, m_row, 0, LVIS_SELECTED);
}

SelectionMove::~SelectionMove() {
    if (m_row >= 0 && m_list.isLive() && firstSelectedRow(m_list) < 0)
        setRowState(m_list, m_row, LVIS_SELECTED, LVIS_SELECTED);
}
