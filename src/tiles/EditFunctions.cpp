#include "src/tiles/EditFunctions.h"

#include "src/dialog/CurrentTile.h"
#include "src/dialog/WexDialog.h"
#include "src/tiles/WexEditBox.h"

namespace {

void setNotation(LispCall& call, EditMode mode) {
    auto* box = controlAs<WexEditBox>(call.tile());
    const int unit = call.shortNumber().value_or(-1);
    const int precision = call.shortNumber().value_or(-1);
    if (box && !call.lacksArgument()) box->setNotation(mode, unit, precision);
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
