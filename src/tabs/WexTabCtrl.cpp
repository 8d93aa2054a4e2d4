#include "src/tabs/WexTabCtrl.h"

IMPLEMENT_DYNAMIC(WexTabCtrl, CTabCtrl)

void WexTabCtrl::discovered(WexDialog&, CCtrlInfo&) { lower(); }
