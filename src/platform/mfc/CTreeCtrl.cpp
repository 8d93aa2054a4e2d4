#include "src/platform/mfc/CTreeCtrl.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

const MessageMap& CTreeCtrl::messageMap() const {
    static const MessageMap map(CWnd::messageMap(),
                                {
                                    onReflectedNotify<TVN_GETDISPINFOW, &CTreeCtrl::onGetDispInfo>(),
                                    onReflectedNotify<TVN_DELETEITEMW, &CTreeCtrl::onDeleteItem>(),
                                });
    return map;
}

LRESULT CTreeCtrl::WindowProc(UINT message, WPARAM w, LPARAM l) {
    m_tip.see(*this, message, l);
    return CWnd::WindowProc(message, w, l);
}

HTREEITEM CTreeCtrl::itemAt(POINT at) const {
    TVHITTESTINFO hit{at, 0, nullptr};
    SendMessage(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.hItem;
}

void CTreeCtrl::onGetDispInfo(NMHDR* header) {
    TVITEMW& item = reinterpret_cast<NMTVDISPINFOW*>(header)->item;
    if (item.mask & TVIF_IMAGE) item.iImage = -1;
    if (item.mask & TVIF_SELECTEDIMAGE) item.iSelectedImage = -1;
}

// Nobody listens. The way through the dialog's procedure would take a third of the time in which a tree of
// many items closes.
void CTreeCtrl::onDeleteItem(NMHDR*) {}
