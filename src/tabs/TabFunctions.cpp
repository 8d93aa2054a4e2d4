#include "src/tabs/TabFunctions.h"

#include "src/dialog/TileWarnings.h"
#include "src/tabs/WexTabCtrl.h"

namespace {

std::vector<CWnd*> pageMembers(const WexDialog& dialog, const HostValue* arguments) {
    return membersOf(arguments, {
                                    [&](const wchar_t* key) { return dialog.itemFor({.key = key}); },
                                    [&](int id) {
                                        CWnd* member = dialog.GetDlgItem(id);
                                        if (!member)
                                            warnUnknownTile(dialog,
                                                            {.key = {}, .id = static_cast<uint32_t>(id)});
                                        return member;
                                    },
                                });
}

}  // namespace

void tabAdd(LispCall& call) {
    const TileAddress address = call.tile();
    const CString caption = call.textOrEmpty();
    if (call.lacksArgument()) return call.retNil();
    const HostValue* members = call.rest();
    for (const HostValue* node = members; node; node = node->next)
        if (node->type != HV_STRING && node->type != HV_SHORT)
            call.warnMistyped(*node, L"the key or the id of a tile");
    if (auto* tab = controlAs<WexTabCtrl>(address, L"tab controls"))
        tab->addPage(caption, pageMembers(*currentDialog(), members));
    call.retVoid();
}
