#include "src/tiles/EditFunctions.h"

#include "src/dialog/WexDialog.h"
#include "src/tiles/WexEditBox.h"

namespace {

CWnd* controlOf(const TileAddress& tile) {
    const WexDialog* dialog = currentDialog();
    return dialog ? dialog->itemFor(tile) : nullptr;
}

int shortOf(const HostValue& node) { return node.type == HV_SHORT ? node.value.shortValue : -1; }

void setNotation(LispCall& call, EditMode mode) {
    auto* box = dynamic_cast<WexEditBox*>(controlOf(call.tile()));
    const HostValue* unit = call.next();
    const HostValue* precision = call.next();
    if (box && unit && precision) box->setNotation(mode, shortOf(*unit), shortOf(*precision));
    call.retNil();
}

}  // namespace

void editSetAsNumeric(LispCall& call) { setNotation(call, EditMode::numeric); }

void editSetAsAngular(LispCall& call) { setNotation(call, EditMode::angular); }

void editSetEditLimit(LispCall& call) {
    const TileAddress tile = call.tile();
    const auto limit = call.shortNumber();
    call.retNil();
    WexDialog* dialog = currentDialog();
    if (!dialog || !limit) return;
    if (const CWnd* control = dialog->itemFor(tile)) {
        if (control->IsKindOf(RUNTIME_CLASS(CEdit))) control->SendMessage(EM_LIMITTEXT, *limit);
    } else if (CCtrlInfo* record = dialog->tileFor(tile)) {
        record->m_editLimit = *limit;
    }
}
