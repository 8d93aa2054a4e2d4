#include "src/dialog/DialogFunctions.h"

#include <new>

#include "src/dialog/ParentWindow.h"
#include "src/dialog/TileWarnings.h"
#include "src/dialog/WexDialog.h"
#include "src/platform/base/EventText.h"
#include "src/shell/EventFile.h"

namespace {

// The position argument of the last wex_new_dialog, -1 without one. A dialog's place comes from its template
// and its profile alone. kept: programs give the position.
int32_t g_dialogPosX = -1;
int32_t g_dialogPosY = -1;

constexpr wchar_t BINDS_TOO_LATE[] = L"actions are bound between wex_new_dialog and wex_start_dialog";

void warnUnknownDialog(const CString& name) {
    if (isHeard(WARN_UNKNOWN_DIALOG))
        tellWarning(WARN_UNKNOWN_DIALOG, L"there is no dialog " + quoted(name), name, dialogNames());
}

// Defines the function of an action in the event file, and gives its name.
CString defineAction(const WexDialog& dialog, const CString& key, const CString& lispText) {
    const CString suffix = dialog.m_name + key;
    addAction(g_dialogName, suffix, lispText);
    return actionFunctionName(suffix);
}

void setDialogAction(LispCall& call, CString WexDialog::*action, const wchar_t* word) {
    const auto lispText = call.text();
    WexDialog* dialog = dialogToWork();
    if (dialog && dialog->isRunning()) warnRuns(*dialog, BINDS_TOO_LATE);
    if (dialog && lispText) dialog->*action = defineAction(*dialog, word, *lispText);
    call.retVoid();
}

// Leaves the status in g_doneStatus, and the dialog made before as the current one.
void runToItsEnd(WexDialog& dialog) {
    // Lisp may have made dialogs meanwhile that it never started: the newest goes, whichever ran.
    struct Removal {
        ~Removal() { g_dialogs.removeNewest(); }
    } const removal;
    const int result = dialog.DoModal();
    if (result != 0) g_doneStatus = -1;
    if (result == -1) warnUnlessTemplate(dialog);
}

}  // namespace

void newDialog(LispCall& call) {
    g_dialogPosX = g_dialogPosY = -1;
    if (const auto name = call.text()) g_dialogName = *name;
    g_dialogs.clearCurrent();
    if (const auto position = call.point()) {
        g_dialogPosX = position->x;
        g_dialogPosY = position->y;
    }
    const auto source = findDialog(g_dialogName);
    if (!source) {
        alertText(TEXT_NO_SUCH_DIALOG);
        warnUnknownDialog(g_dialogName);
        return call.retNil();
    }
    std::unique_ptr<WexDialog> dialog;
    try {
        dialog = std::make_unique<WexDialog>(*source, findParentWindow());
    } catch (const std::bad_alloc&) {
        alertText(TEXT_DIALOG_NOT_MADE);
        return call.retNil();
    }
    dialog->m_name = toLower(g_dialogName);
    g_dialogs.add(std::move(dialog));
    beginEventFile(g_dialogName);
    call.retT();
}

void startDialog(LispCall& call) {
    if (!loadEventFile(g_dialogName)) {
        warn(WARN_NOT_FOUND, L"the dialog doesn't run: the file of its actions can't be written");
        return call.retVoid();
    }
    WexDialog* dialog = dialogToWork();
    // A dialog that is running already can't run a second time.
    if (dialog && dialog->isRunning()) warnRuns(*dialog, L"it can't be started a second time");
    if (!dialog || dialog->isRunning()) return call.retVoid();
    dialog->m_registrySection = L"Wex_" + g_dialogName;
    runToItsEnd(*dialog);
    call.ret(g_doneStatus);
}

void doneDialog(LispCall& call) {
    g_doneStatus = call.shortOr(0);
    WexDialog* dialog = dialogToWork();
    if (!dialog) return call.retVoid();
    if (!dialog->isRunning()) warnNotStarted(*dialog);
    dialog->EndDialog(0);
    call.retNil();
}

void actionTile(LispCall& call) {
    const TileAddress tile = call.tile();
    const CString lispText = call.textOrEmpty();
    if (call.lacksArgument()) return call.retNil();
    WexDialog* dialog = dialogToWork();
    if (!dialog) return call.retVoid();
    // With neither a key nor an id the key is "-1".
    const CString key = tile.key.IsEmpty() ? CString(std::to_wstring(tile.controlId())) : tile.key;
    CCtrlInfo* record = tile.isById() ? dialog->tileForId(tile.controlId()) : dialog->tileForKey(key);
    if (dialog->isRunning()) {
        warnRuns(*dialog, BINDS_TOO_LATE);
    } else {
        dialog->checkTile(tile, record);
        warnUnlessHasEvents(*dialog, tile);
    }
    record->m_action = defineAction(*dialog, key, lispText);
    call.retT();
}

void setActionOnInit(LispCall& call) { setDialogAction(call, &WexDialog::m_onInitAction, L"OnInit"); }

void setActionOnSize(LispCall& call) { setDialogAction(call, &WexDialog::m_onSizeAction, L"OnSize"); }

void answerNil(LispCall& call) { call.retNil(); }
