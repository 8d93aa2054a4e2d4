#include "src/listctrl/WexListCtrl.h"

IMPLEMENT_DYNAMIC(WexListCtrl, CListCtrl)

void WexListCtrl::discovered(WexDialog&, CCtrlInfo&) {
    ModifyStyle(0, LVS_SHOWSELALWAYS);
    const LRESULT styles = SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE);
    SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, styles | LVS_EX_FULLROWSELECT);
}
