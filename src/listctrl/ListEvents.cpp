// What a list control does at the mouse, the keys and its notifications.
#include "src/dialog/EventBridge.h"
#include "src/dialog/Pressable.h"
#include "src/dialog/SelectionText.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/ListClipboard.h"
#include "src/listctrl/ListSort.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/host/HostUnits.h"

namespace {

constexpr int NO_COLUMN = -1;

// -1 beside the rows.
int rowAt(const CWnd& list, POINT at) {
    LVHITTESTINFO hit{};
    hit.pt = at;
    return static_cast<int>(list.SendMessage(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

std::optional<double> hostDistance(const wchar_t* text, int unit) {
    double value = 0;
    return hostDisToF(text, unit, &value) == HOST_NORMAL ? std::optional(value) : std::nullopt;
}

bool isControlAlone() {
    const auto held = [](int key) { return GetKeyState(key) < 0; };
    return held(VK_CONTROL) && !held(VK_SHIFT) && !held(VK_MENU);
}

}  // namespace

const MessageMap& WexListCtrl::messageMap() const {
    static const MessageMap map(CListCtrl::messageMap(),
                                {
                                    on<WM_LBUTTONDOWN, &WexListCtrl::onLeftDown>(),
                                    on<WM_RBUTTONDOWN, &WexListCtrl::onRightDown>(),
                                    on<WM_LBUTTONDBLCLK, &WexListCtrl::onLeftDoubleClick>(),
                                    on<WM_KEYDOWN, &WexListCtrl::onKeyDown>(),
                                    on<WM_CHAR, &WexListCtrl::onChar>(),
                                    on<WM_KILLFOCUS, &WexListCtrl::onKillFocus>(),
                                    onRaw<WM_CONTEXTMENU, &WexListCtrl::onContextMenu>(),
                                    onRaw<LVM_DELETEALLITEMS, &WexListCtrl::onDeleteAll>(),
                                    onReflectedNotify<NM_DBLCLK, &WexListCtrl::onDoubleClick>(),
                                    onReflectedNotify<LVN_COLUMNCLICK, &WexListCtrl::onColumnClick>(),
                                    onReflectedNotify<LVN_ITEMCHANGING, &WexListCtrl::onItemChange>(),
                                    onReflectedNotify<LVN_ITEMCHANGED, &WexListCtrl::onItemChange>(),
                                    onReflectedNotify<LVN_INSERTITEM, &WexListCtrl::onItemChange>(),
                                    onReflectedNotify<LVN_GETDISPINFOW, &WexListCtrl::onGetDispInfo>(),
                                    onReflectedNotify<LVN_ODFINDITEMW, &WexListCtrl::onFindItem>(),
                                });
    return map;
}

// What the platform does at a press on a row. False where there was no row, or the list is gone. kept: a
// press beside the rows is lost. It neither clears the selection nor moves the focus here.
bool WexListCtrl::pressRow(POINT at) {
    const int row = rowAt(*this, at);
    if (row < 0) return false;
    // A list that hasn't learned that it lost the focus doesn't take it back by itself.
    if (::GetFocus() != m_hWnd) SetFocus();
    if (isLive()) {
        const SelectionMove move(*this);
        Default();
    }
    if (isLive()) m_lastRow = row;
    return isLive();
}

void WexListCtrl::onLeftDown(UINT /*keys*/, POINT at) {
    if (!pressRow(at)) return;
    std::vector<int> rows = selectedRows(*this);
    if (rows.empty()) rows.push_back(m_lastRow);
    publish(*this, selectionText(rows), REASON_ROWS, m_action);
}

void WexListCtrl::onRightDown(UINT /*keys*/, POINT at) {
    // kept: where nothing was selected, the row that the press selects isn't told.
    const bool hadSelection = firstSelectedRow(*this) >= 0;
    if (!pressRow(at)) return;
    publish(*this, hadSelection ? selectionText(selectedRows(*this)) : CString(), REASON_ROWS, m_action);
}

void WexListCtrl::onLeftDoubleClick(UINT /*keys*/, POINT /*at*/) {
    if (m_enableDblClk) Default();
}

// On a row it tells the row and then accepts the dialog; beside the rows it brings a lost selection back.
void WexListCtrl::onDoubleClick(NMHDR* header) {
    if (!m_enableDblClk) return;
    const int first = firstSelectedRow(*this);
    if (first < 0) return selectRow(*this, m_lastRow);
    const int row = reinterpret_cast<const NMITEMACTIVATE*>(header)->iItem;
    if (row < 0 || row >= rowCount(*this)) return;
    m_lastRow = first;
    publish(*this, std::to_wstring(row), REASON_DOUBLE_CLICKED, m_action);
    if (isLive()) pressOk();
}

// kept: without the guard of a click, and also where the action has ended the dialog.
void WexListCtrl::pressOk() {
    const CWnd* parent = GetParent();
    CWnd* ok = parent ? parent->GetDlgItem(IDOK) : nullptr;
    if (auto* button = dynamic_cast<Pressable*>(ok)) button->press();
}

// The rows that come now stand in an order of their own.
LRESULT WexListCtrl::onDeleteAll(WPARAM, LPARAM) {
    showSortDirection(*this, NO_COLUMN, true);
    return Default();
}

void WexListCtrl::onColumnClick(NMHDR* header) {
    sortBy(reinterpret_cast<const NMLISTVIEW*>(header)->iSubItem);
}

void WexListCtrl::sortBy(int column) {
    if (!m_allowSorting) return;
    const bool ascending = m_sortState != column + 1;
    if (sortRows(*this, column, ascending, &hostDistance)) showSortDirection(*this, column, ascending);
    m_sortState = ascending ? column + 1 : -(column + 1);
}

bool WexListCtrl::PreTranslateMessage(MSG& message) {
    if (message.message == WM_KEYDOWN) noteArrow(message.wParam);
    if (message.message == WM_KEYUP)
        publish(*this, selectionText(selectedRows(*this)), REASON_ROWS, m_action);
    return false;
}

// The row to which the arrow is about to move the selection. kept: it may be one past the last.
void WexListCtrl::noteArrow(WPARAM key) {
    if (key != VK_DOWN && key != VK_UP) return;
    const int first = firstSelectedRow(*this);
    if (first < 0) return;
    if (key == VK_DOWN) m_lastRow = first + 1;
    if (key == VK_UP && first >= 1) m_lastRow = first - 1;
}

bool WexListCtrl::hasClickableHeads() const {
    return !(GetStyle() & (LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER));
}

// Ctrl+C copies the selected rows; Ctrl+1 to Ctrl+9 are the clicks on the heads of the first nine columns.
void WexListCtrl::onKeyDown(UINT key, UINT /*flags*/) {
    if (isControlAlone()) {
        const int column = static_cast<int>(key) - '1';
        if (key == 'C' || key == VK_INSERT) copySelectedRows(*this);
        if (column >= 0 && column < 9 && column < columnCount(*this) && hasClickableHeads()) sortBy(column);
    }
    const SelectionMove move(*this);
    Default();
}

// Typing leads to the row that begins so.
void WexListCtrl::onChar(UINT /*character*/, UINT /*flags*/) {
    const SelectionMove move(*this);
    Default();
}

// kept: while the highlight is kept, the list doesn't learn that the focus has left it.
void WexListCtrl::onKillFocus(CWnd* /*to*/) {
    if (!m_keepHighlight) Default();
}
