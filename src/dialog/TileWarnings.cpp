#include "src/dialog/TileWarnings.h"

#include <algorithm>
#include <cwctype>

#include "src/dialog/EntrySelection.h"
#include "src/platform/base/DialogTemplate.h"

namespace {

struct KindWord {
    std::wstring_view className;
    const wchar_t* word;
};

constexpr KindWord KIND_WORDS[] = {
    {L"Button", L"a button"},
    {L"Edit", L"an edit box"},
    {L"Static", L"a text"},
    {L"ListBox", L"a list box"},
    {L"ComboBox", L"a combo box"},
    {L"ScrollBar", L"a scroll bar"},
    {L"SysListView32", L"a list control"},
    {L"SysTreeView32", L"a tree"},
    {L"SysTabControl32", L"a tab control"},
    {L"GXWND", L"a grid"},
};

const wchar_t* kindWord(const CString& className) {
    const auto found = std::find_if(std::begin(KIND_WORDS), std::end(KIND_WORDS), [&](const KindWord& kind) {
        return equalIgnoringCase(kind.className, className);
    });
    return found == std::end(KIND_WORDS) ? L"of another kind" : found->word;
}

CStringArray spelledKeys(const WexDialog& dialog) {
    CStringArray keys;
    if (const auto list = dialog.m_source.spelledKeyList()) keys = list->keys;
    keys.insert(keys.end(), {L"OK", L"Cancel"});
    std::erase_if(keys, [](const CString& key) { return key.IsEmpty(); });
    return keys;
}

// The bytes of the dialog's template; none where there is no such template.
std::span<const uint8_t> templateOf(const WexDialog& dialog) {
    const wchar_t* name = MAKEINTRESOURCEW(dialog.m_templateId);
    const HMODULE module =
        dialog.m_source.templates ? dialog.m_source.templates : AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = module ? FindResourceW(module, name, RT_DIALOG) : nullptr;
    const auto* bytes =
        found ? static_cast<const uint8_t*>(LockResource(LoadResource(module, found))) : nullptr;
    return {bytes, bytes ? SizeofResource(module, found) : 0};
}

// The control of the dialog's template with that id.
std::optional<DialogTemplateControl> templateControl(const WexDialog& dialog, int id) {
    const auto layout = parseDialogTemplate(templateOf(dialog));
    if (!layout) return std::nullopt;
    for (const DialogTemplateControl& control : layout->controls)
        if (control.id == id) return control;
    return std::nullopt;
}

void tellOtherKind(const CString& tile, const CString& className, const wchar_t* needed) {
    tellWarning(WARN_OTHER_KIND,
                L"tile " + tile + L" is " + kindWord(className) + L", and the function is for " + needed);
}

}  // namespace

CString spelledName(const WexDialog& dialog) {
    const auto list = dialog.m_source.spelledKeyList();
    return list ? list->name : dialog.m_name;
}

CString shownTile(const TileAddress& tile) {
    return tile.isById() ? CString(std::to_wstring(tile.controlId())) : quoted(tile.key);
}

CString shownTile(const WexDialog& dialog, const CWnd& control) {
    const int id = control.GetDlgCtrlID();
    if (const auto list = dialog.m_source.spelledKeyList()) {
        const int position = id - FIRST_KEY_CONTROL_ID;
        const bool hasKey =
            position >= 0 && position < std::ssize(list->keys) && !list->keys[position].IsEmpty();
        if (hasKey) return quoted(list->keys[position]);
    }
    if (id == OK_CONTROL_ID) return L"\"OK\"";
    if (id == CANCEL_CONTROL_ID) return L"\"Cancel\"";
    return std::to_wstring(id);
}

void warnNoDialog() { warn(WARN_NO_DIALOG, L"no dialog is current: wex_new_dialog makes one"); }

void warnNotStarted(const WexDialog& dialog) {
    warn(WARN_NOT_NOW, [&] {
        return spelledName(dialog) +
               L" doesn't run yet: this works from its start action (wex_setaction_oninit) on";
    });
}

void warnRuns(const WexDialog& dialog, const wchar_t* words) {
    warn(WARN_NOT_NOW, [&] { return spelledName(dialog) + L" runs already: " + words; });
}

void warnUnlessTemplate(const WexDialog& dialog) {
    if (templateOf(dialog).empty())
        warn(WARN_NO_TEMPLATE, [&] {
            return spelledName(dialog) + L" has no template " + std::to_wstring(dialog.m_templateId);
        });
}

void warnUnknownTile(const WexDialog& dialog, const TileAddress& tile) {
    // What is no address at all has been told by then.
    if (!tile.isById() && tile.key.IsEmpty()) return;
    if (!isHeard(WARN_UNKNOWN_TILE)) return;
    const CString name = spelledName(dialog);
    const bool hasKey = !tile.isById() && dialog.idForKey(tile.key) >= 0;
    if (hasKey)
        tellWarning(WARN_UNKNOWN_TILE,
                    name + L" has the key " + shownTile(tile) + L", but no control for it");
    else if (tile.isById())
        tellWarning(WARN_UNKNOWN_TILE, name + L" has no tile " + shownTile(tile));
    else
        tellWarning(WARN_UNKNOWN_TILE, name + L" has no tile " + shownTile(tile), tile.key,
                    spelledKeys(dialog));
}

void warnUnlessInTemplate(const WexDialog& dialog, const TileAddress& tile) {
    if (tile.isById() && isHeard(WARN_UNKNOWN_TILE) && templateControl(dialog, tile.controlId())) return;
    warnUnknownTile(dialog, tile);
}

// At the start the entries come after the value, which is then set once more.
void warnNoEntry(const CWnd& control, const CString& value) {
    const WexDialog* dialog = currentDialog();
    if (!dialog || !dialog->hasApplied()) return;
    warn(WARN_OUTSIDE, [&] { return L"tile " + shownTile(*dialog, control) + L" has no entry " + value; });
}

void warnUnlessNumber(const CString& value) {
    const size_t digit = value.find_first_not_of(L" \t+-");
    if (value.IsEmpty() || (digit != CString::npos && iswdigit(value[digit]))) return;
    warn(WARN_NO_EFFECT, [&] { return quoted(value) + L" is no number of an entry, and counts as 0"; });
}

void warnOtherKind(const CWnd& control, const wchar_t* needed) {
    if (!isHeard(WARN_OTHER_KIND)) return;
    const WexDialog* dialog = currentDialog();
    const CString tile =
        dialog ? shownTile(*dialog, control) : CString(std::to_wstring(control.GetDlgCtrlID()));
    tellOtherKind(tile, control.className(), needed);
}

void warnUnlessOfClass(const WexDialog& dialog, const TileAddress& tile,
                       std::span<const std::wstring_view> classes, const wchar_t* needed) {
    if (!isHeard(WARN_OTHER_KIND)) return;
    const int id = tile.isById() ? tile.controlId() : dialog.idForKey(tile.key);
    const auto control = templateControl(dialog, id);
    const auto isClass = [&](std::wstring_view name) { return equalIgnoringCase(name, control->className); };
    if (!control || std::any_of(classes.begin(), classes.end(), isClass)) return;
    tellOtherKind(shownTile(tile), control->className, needed);
}
