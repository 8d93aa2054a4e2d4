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
    {L"WexFrame", L"a frame"},
};
constexpr std::wstring_view CLASSES_WITH_EVENTS[] = {
    L"Button", L"Edit", L"ListBox", L"ComboBox", L"SysListView32", L"SysTreeView32", L"GXWND"};
constexpr std::wstring_view CLASSES_WITHOUT_VALUE[] = {L"SysTreeView32", L"GXWND", L"WexFrame"};
constexpr wchar_t VALUE_TILES[] = L"tiles with a text, a state or entries";

bool isAmong(std::span<const std::wstring_view> classes, std::wstring_view className) {
    return std::any_of(classes.begin(), classes.end(),
                       [&](std::wstring_view name) { return equalIgnoringCase(name, className); });
}

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

// The control of the dialog's template with that id; null where there is none.
const DialogTemplateControl* templateControl(const WexDialog& dialog, int id) {
    if (!dialog.m_layout) {
        auto layout = parseDialogTemplate(templateOf(dialog));
        dialog.m_layout =
            std::make_unique<const DialogTemplate>(layout ? std::move(*layout) : DialogTemplate());
    }
    for (const DialogTemplateControl& control : dialog.m_layout->controls)
        if (control.id == id) return &control;
    return nullptr;
}

const DialogTemplateControl* templateControl(const WexDialog& dialog, const TileAddress& tile) {
    return templateControl(dialog, tile.isById() ? tile.controlId() : dialog.idForKey(tile.key));
}

bool isGroupBox(const DialogTemplateControl& control) {
    return equalIgnoringCase(control.className, L"Button") && (control.style & BS_TYPEMASK) == BS_GROUPBOX &&
           !(control.exStyle & WS_EX_STATICEDGE);
}

void tellOtherKind(const CString& tile, const wchar_t* kind, const wchar_t* needed) {
    warn(WARN_OTHER_KIND,
         [&] { return L"tile " + tile + L" is " + kind + L", and the function is for " + needed; });
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

CString shownTile(const CWnd& control) {
    const WexDialog* dialog = currentDialog();
    return dialog ? shownTile(*dialog, control) : CString(std::to_wstring(control.GetDlgCtrlID()));
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
    if (tile.isById() && templateControl(dialog, tile.controlId())) return;
    warnUnknownTile(dialog, tile);
}

void warnNoEntry(const CWnd& control, const CString& value, Entries entries) {
    const WexDialog* dialog = currentDialog();
    if (entries == Entries::mayWait && (!dialog || !dialog->hasApplied())) return;
    warn(WARN_OUTSIDE, [&] { return L"tile " + shownTile(control) + L" has no entry " + value; });
}

void warnUnlessNumber(const CString& value) {
    const size_t digit = value.find_first_not_of(L" \t+-");
    if (value.IsEmpty() || (digit != CString::npos && iswdigit(value[digit]))) return;
    warn(WARN_NO_EFFECT, [&] { return quoted(value) + L" is no number of an entry, and counts as 0"; });
}

void warnOtherKind(const CWnd& control, const wchar_t* needed) {
    if (isHeard(WARN_OTHER_KIND)) tellOtherKind(shownTile(control), kindWord(control.className()), needed);
}

void warnUnlessHasEvents(const WexDialog& dialog, const TileAddress& tile) {
    const DialogTemplateControl* control = templateControl(dialog, tile);
    if (!control || (isAmong(CLASSES_WITH_EVENTS, control->className) && !isGroupBox(*control))) return;
    tellOtherKind(shownTile(tile), isGroupBox(*control) ? L"a frame" : kindWord(control->className),
                  L"tiles that a person works");
}

void warnUnlessShowsValue(const CWnd& control) {
    if (isAmong(CLASSES_WITHOUT_VALUE, control.className())) warnOtherKind(control, VALUE_TILES);
}

void warnUnlessTellsValue(const CWnd& control) {
    const CString name = control.className();
    if (name == L"SysTabControl32" || isAmong(CLASSES_WITHOUT_VALUE, name))
        warnOtherKind(control, VALUE_TILES);
}

void warnSurplusFields(const CWnd& table, size_t fields, size_t columns) {
    warn(WARN_UNUSED_ARGUMENT, [&] {
        return L"tile " + shownTile(table) + L" has " + std::to_wstring(columns) + L" columns for the " +
               std::to_wstring(fields) + L" fields of a row";
    });
}

void warnUnlessOfClass(const WexDialog& dialog, const TileAddress& tile,
                       std::span<const std::wstring_view> classes, const wchar_t* needed) {
    const DialogTemplateControl* control = templateControl(dialog, tile);
    if (!control || isAmong(classes, control->className)) return;
    tellOtherKind(shownTile(tile), kindWord(control->className), needed);
}
