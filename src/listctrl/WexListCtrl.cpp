#include "src/listctrl/WexListCtrl.h"

#include <iterator>

#include "src/dialog/WexDialog.h"

IMPLEMENT_DYNAMIC(WexListCtrl, CListCtrl)

RowSource* g_rowSource = nullptr;

namespace {

// The field of a source that each column shows. kept: the second field isn't shown.
constexpr int sourceFields[] = {0, 2, 3};

}  // namespace

void WexListCtrl::discovered(WexDialog&, CCtrlInfo&) {
    ModifyStyle(0, LVS_SHOWSELALWAYS);
    const LRESULT styles = SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE);
    SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, styles | LVS_EX_FULLROWSELECT);
}

void WexListCtrl::applyRecord(CCtrlInfo& tile) {
    TileControl::applyRecord(tile);
    m_enableDblClk = tile.m_dblClickEnabled;
}

void WexListCtrl::bindTo(RowSource& source) {
    m_dataSource = &source;
    SendMessage(LVM_SETITEMCOUNT, source.rowCount());
}

void WexListCtrl::onGetDispInfo(NMHDR* header) {
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    if (!m_dataSource || !(item.mask & LVIF_TEXT)) return;
    const auto column = static_cast<size_t>(item.iSubItem);
    if (column >= std::size(sourceFields)) return;
    const CString text = m_dataSource->field(item.iItem, sourceFields[column]);
    lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}
