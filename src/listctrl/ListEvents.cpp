// What a list control does at the mouse, the keys and its notifications.
#include "src/listctrl/WexListCtrl.h"

const MessageMap& WexListCtrl::messageMap() const {
    static const MessageMap map(CListCtrl::messageMap(),
                                {
                                    onReflectedNotify<LVN_GETDISPINFOW, &WexListCtrl::onGetDispInfo>(),
                                });
    return map;
}
