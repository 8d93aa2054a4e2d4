#include "src/tabs/TabFunctions.h"

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
    const HostValue* title = call.next();
    if (!title) return call.retNil();
    const WexDialog* dialog = currentDialog();
    auto* tab = dialog ? dynamic_cast<WexTabCtrl*>(dialog->itemFor(address)) : nullptr;
    if (tab) {
        const CString caption = title->type == HV_STRING ? title->value.stringValue : L"";
        tab->addPage(caption, pageMembers(*dialog, call.next()));
    }
    call.retVoid();
}
