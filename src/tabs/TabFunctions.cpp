#include "src/tabs/TabFunctions.h"

#include "src/dialog/CurrentTile.h"
#include "src/dialog/WexDialog.h"
#include "src/tabs/WexTabCtrl.h"

namespace {

std::vector<CWnd*> pageMembers(const WexDialog& dialog, const HostValue* arguments) {
    return membersOf(arguments, {
                                    [&](const wchar_t* key) { return dialog.itemForKey(key); },
                                    [&](int id) { return dialog.GetDlgItem(id); },
                                });
}

}  // namespace

void tabAdd(LispCall& call) {
    const TileAddress address = call.tile();
    const CString caption = call.textOrEmpty();
    if (call.lacksArgument()) return call.retNil();
    if (auto* tab = controlAs<WexTabCtrl>(address))
        tab->addPage(caption, pageMembers(*currentDialog(), call.next()));
    call.retVoid();
}
