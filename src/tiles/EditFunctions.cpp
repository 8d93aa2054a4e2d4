#include "src/tiles/EditFunctions.h"

#include "src/dialog/TileWarnings.h"
#include "src/tiles/EditFilter.h"
#include "src/tiles/WexEditBox.h"

namespace {

constexpr wchar_t EDIT_BOXES[] = L"edit boxes";
constexpr int MOST_PRECISION = 8;  // of the host's converters
constexpr std::wstring_view EDIT_CLASS[] = {L"Edit"};

void setNotation(LispCall& call, EditMode mode) {
    auto* box = controlAs<WexEditBox>(call.tile(), EDIT_BOXES);
    const int unit = call.shortNumber().value_or(-1);
    if (box && !validChars(mode, unit)) call.warnOfArgument([=] { return noSuch(L"unit", unit); });
    const int precision = call.shortNumber().value_or(-1);
    if (box && (precision < -1 || precision > MOST_PRECISION))
        call.warnOfArgument([=] { return noSuch(L"precision", precision); });
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
    WexDialog* dialog = dialogToWork();
    if (!dialog || !limit) return;
    if (*limit < 0)
        call.warnOfArgument([=] { return std::to_wstring(*limit) + L" is no number of characters"; });
    if (!dialog->m_hWnd) warnUnlessOfClass(*dialog, tile, EDIT_CLASS, EDIT_BOXES);
    if (const CWnd* control = dialog->itemFor(tile)) {
        if (control->IsKindOf(RUNTIME_CLASS(CEdit)))
            control->SendMessage(EM_LIMITTEXT, *limit);
        else
            warnOtherKind(*control, EDIT_BOXES);
    } else if (CCtrlInfo* record = dialog->tileFor(tile)) {
        record->m_editLimit = *limit;
    }
}
