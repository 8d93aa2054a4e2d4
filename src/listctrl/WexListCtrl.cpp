#include "src/listctrl/WexListCtrl.h"

#include <algorithm>
#include <iterator>

#include "src/dialog/WexDialog.h"
#include "src/listctrl/ListCells.h"
#include "src/listctrl/ListColumns.h"
#include "src/listctrl/RowSelection.h"

IMPLEMENT_DYNAMIC(WexListCtrl, CListCtrl)

namespace {

// The field of a source that each column shows. kept: the second field isn't shown.
constexpr int SOURCE_FIELDS[] = {0, 2, 3};

// The dialog whose list shows the source.
constexpr UINT SOURCE_DIALOG = 1898;

}  // namespace

void WexListCtrl::discovered(WexDialog&, CCtrlInfo&) {
    ModifyStyle(0, LVS_SHOWSELALWAYS);
    const LRESULT styles = SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE);
    SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, styles | LVS_EX_FULLROWSELECT);
}

void WexListCtrl::applyRecord(CCtrlInfo& tile) {
    TileControl::applyRecord(tile);
    m_enableDblClk = tile.m_dblClickEnabled;
    if (!tile.m_auxText.IsEmpty()) {
        m_columnRef = tile.m_auxText;
        applyColumnText(*this, m_columnRef);
    }
    if (g_rowSource && showsRecords(*this)) bindTo(*g_rowSource);
}

CString WexListCtrl::value() { return std::to_wstring(firstSelectedRow(*this)); }

void WexListCtrl::bindTo(RowSource& source) {
    m_dataSource = &source;
    SendMessage(LVM_SETITEMCOUNT, source.rowCount());
}

void WexListCtrl::onGetDispInfo(NMHDR* header) {
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    if (!m_dataSource || !(item.mask & LVIF_TEXT)) return;
    const auto column = static_cast<size_t>(item.iSubItem);
    const bool isShown = column < std::size(SOURCE_FIELDS);
    // kept: the record is fetched for a column without a field too, and is an exception where it isn't there.
    const CString text = m_dataSource->field(item.iItem, SOURCE_FIELDS[isShown ? column : 0]);
    if (isShown) lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}

// The list asks where typing leads, since it can't search rows that it doesn't have.
LRESULT WexListCtrl::onFindItem(NMHDR* header) {
    constexpr LRESULT notFound = -1;
    constexpr UINT subString = 0x4;  // LVFI_SUBSTRING, another word for LVFI_PARTIAL
    const auto& search = *reinterpret_cast<const NMLVFINDITEMW*>(header);
    const UINT flags = search.lvfi.flags;
    const bool byBeginning = flags & (LVFI_PARTIAL | subString);
    const bool byText = (byBeginning || (flags & LVFI_STRING)) && search.lvfi.psz;
    if (!m_dataSource || !byText) return notFound;
    const CString text = search.lvfi.psz;
    const int count = rowCount(*this);
    const int start = std::clamp(search.iStart, 0, count);
    const int found = m_dataSource->find(text, !byBeginning, start, count);
    return found < 0 && (flags & LVFI_WRAP) ? m_dataSource->find(text, !byBeginning, 0, start) : found;
}

bool showsRecords(const CWnd& list) {
    const auto* dialog = dynamic_cast<const WexDialog*>(list.GetParent());
    return dialog && dialog->m_templateId == SOURCE_DIALOG;
}
