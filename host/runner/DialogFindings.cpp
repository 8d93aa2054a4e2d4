#include "host/runner/DialogFindings.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "host/lisp/Reader.h"
#include "host/services/Texts.h"
#include "src/platform/base/DialogResources.h"

namespace {

// The characters that no file name can hold, and how long one can be; the file of a dialog's actions has the
// dialog's name and a few letters more.
constexpr std::wstring_view NOT_IN_FILE_NAMES = L"\\/:*?\"<>|";
constexpr size_t LONGEST_NAME = 240;
// What an unknown key asks for; the second is how older templates write it.
constexpr int UNKNOWN_KEY_ID = -1;
constexpr int UNKNOWN_KEY_ID_16 = 0xFFFF;

// Styles as the platform numbers them.
constexpr uint32_t VISIBLE = 0x10000000;
constexpr uint32_t GROUP = 0x20000;
constexpr uint32_t TAB_STOP = 0x10000;
constexpr uint32_t BUTTON_KIND = 0xF;
constexpr uint32_t RADIO_BUTTON = 0x4, GROUP_BOX = 0x7, AUTO_RADIO_BUTTON = 0x9;
constexpr uint32_t STATIC_KIND = 0x1F;
constexpr uint32_t NO_PREFIX = 0x80;
constexpr uint32_t MULTI_LINE_EDIT = 0x4;
constexpr uint32_t CENTER_IMAGE = 0x200;
constexpr uint32_t MULTI_LINE_BUTTON = 0x2000;
constexpr uint32_t PICTURE_BUTTON = 0xC0;

// What surrounds a button's text, in dialog units.
constexpr int PUSH_BUTTON_BORDER = 4;
constexpr int CHECK_MARK_WIDTH = 12;
constexpr int GROUP_BOX_BORDER = 12;
// Those above and below the text.
constexpr int EDIT_BORDERS = 2;

using Words = std::vector<std::wstring>;

std::wstring nameOf(int id) { return L"control " + std::to_wstring(id); }
std::wstring quoted(std::wstring_view text) { return L'"' + std::wstring(text) + L'"'; }

// A part of the name of a Lisp function.
bool isLispName(const std::wstring& text) { return lisp::isWord(lispText(text)); }

void checkName(const CString& name, Words& found) {
    const bool isFileName =
        name.size() <= LONGEST_NAME && std::none_of(name.begin(), name.end(), [](wchar_t c) {
            return c < L' ' || NOT_IN_FILE_NAMES.find(c) != std::wstring_view::npos;
        });
    if (!isFileName)
        found.push_back(L"no file can have that name, and without one the dialog never starts: leave out " +
                        std::wstring(NOT_IN_FILE_NAMES));
    else if (!isLispName(name))
        found.push_back(
            L"no Lisp symbol can hold that name, so no action of the dialog runs: leave out blanks, "
            L"parentheses, quotes and semicolons");
}

void checkKeys(const KeyListText& list, const DialogTemplate& dialog, Words& found) {
    std::map<CString, size_t> first;
    for (size_t i = 0; i < list.keys.size(); ++i) {
        const CString& key = list.keys[i];
        if (key.empty()) continue;
        const int id = controlIdOfKey(key, i);
        const auto [at, isNew] = first.emplace(key, i);
        if (!isNew)
            found.push_back(L"key " + quoted(key) +
                            L" stands twice, and only the first is found: rename the one at position " +
                            std::to_wstring(i));
        else if (!isLispName(key))
            found.push_back(
                L"key " + quoted(key) +
                L" fits in no Lisp symbol, so an action on it breaks all actions of the dialog: leave "
                L"out blanks, parentheses, quotes and semicolons");
        else if (!isWalkedId(id))
            found.push_back(L"key " + quoted(key) + L" belongs to " + nameOf(id) +
                            L", which is out of reach: shorten the list to 290 keys");
        else if (std::none_of(dialog.controls.begin(), dialog.controls.end(),
                              [id](const auto& control) { return control.id == id; }))
            found.push_back(L"key " + quoted(key) + L" has no control: give the id " + std::to_wstring(id) +
                            L" to one, or leave the key's field empty");
    }
}

std::optional<std::wstring> problemOfId(const KeyListText& list, const DialogTemplateControl& control) {
    const int id = control.id;
    if (id == UNKNOWN_KEY_ID || id == UNKNOWN_KEY_ID_16)
        return L" is what every unknown key would reach: give it an id of its own";
    if (isReportControl(toLower(list.name), id)) return std::nullopt;
    if (!isWalkedId(id)) return L" is out of reach: use the ids 1, 2 and 110 to 399";
    if (id == OK_CONTROL_ID || id == CANCEL_CONTROL_ID) return std::nullopt;
    const size_t position = static_cast<size_t>(id) - FIRST_KEY_CONTROL_ID;
    // A label says what it says without a key.
    if (position >= list.keys.size() && control.className == L"Static" && !control.text.empty())
        return std::nullopt;
    if (id < FIRST_KEY_CONTROL_ID || position >= list.keys.size())
        return L" has no key: add one to the list, or use the id of a key that stands there";
    const CString& key = list.keys[position];
    if (const int meant = controlIdOfKey(key, position); !key.empty() && meant != id)
        return L" stands at the place of the key " + quoted(key) + L", which belongs to the id " +
               std::to_wstring(meant) + L": use another id";
    return std::nullopt;
}

void checkIds(const KeyListText& list, const DialogTemplate& dialog, Words& found) {
    std::set<int> ids;
    for (const DialogTemplateControl& control : dialog.controls) {
        if (!ids.insert(control.id).second)
            found.push_back(nameOf(control.id) + L" is there twice, and only the first is found: give " +
                            quoted(control.text) + L" another id");
        else if (const auto problem = problemOfId(list, control))
            found.push_back(nameOf(control.id) + *problem);
    }
}

bool readsMnemonic(const DialogTemplateControl& control) {
    return control.className == L"Button" || (control.className == L"Static" && !(control.style & NO_PREFIX));
}

// An icon has its mnemonic in its tip.
void checkMnemonics(const DialogTemplate& dialog, const DialogSurroundings& surroundings, Words& found) {
    std::map<wchar_t, const DialogTemplateControl*> first;
    const auto iconOf = [&](const DialogTemplateControl& control) {
        return findIconCaption(surroundings.iconCaptions, control);
    };
    for (const DialogTemplateControl& control : dialog.controls) {
        if (!readsMnemonic(control)) continue;
        const IconCaption* icon = iconOf(control);
        const auto mnemonic = mnemonicOf(icon ? icon->tip : control.text);
        if (!mnemonic) continue;
        const auto [at, isNew] = first.emplace(*mnemonic, &control);
        if (isNew) continue;
        const bool isIcons = icon || iconOf(*at->second);
        found.push_back(nameOf(control.id) + L" has the mnemonic " + quoted({&*mnemonic, 1}) + L" of " +
                        nameOf(at->second->id) +
                        (isIcons
                             ? L": an icon has it in its tip, so put the & of the other before another letter"
                             : L": put the & before another letter"));
    }
}

bool isWorked(const DialogTemplateControl& control) {
    static constexpr const wchar_t* WORKED[] = {
        L"Edit", L"ListBox", L"ComboBox", L"GXWND", L"SysListView32", L"SysTreeView32", L"SysTabControl32"};
    if (!(control.style & VISIBLE)) return false;
    if (control.className == L"Button")
        return (control.style & BUTTON_KIND) != GROUP_BOX && !(control.exStyle & SLIDE_EX_STYLE);
    return std::any_of(std::begin(WORKED), std::end(WORKED),
                       [&](const wchar_t* name) { return equalIgnoringCase(name, control.className); });
}

bool isRadioButton(const DialogTemplateControl& control) {
    const uint32_t kind = control.style & BUTTON_KIND;
    return control.className == L"Button" && (kind == RADIO_BUTTON || kind == AUTO_RADIO_BUTTON);
}

// The arrow keys lead from one radio button of a group to the others; everything else needs the Tab key.
void checkTabKey(const DialogTemplate& dialog, Words& found) {
    const auto& controls = dialog.controls;
    const auto beginsGroup = [](const DialogTemplateControl& control) {
        return (control.style & GROUP) != 0;
    };
    const auto hasTabStop = [](const DialogTemplateControl& control) {
        return (control.style & TAB_STOP) && control.className == L"Button";
    };
    for (auto begin = controls.begin(); begin != controls.end();) {
        const auto end = std::find_if(std::next(begin), controls.end(), beginsGroup);
        const bool hasButton = std::any_of(begin, end, hasTabStop);
        for (; begin != end; ++begin) {
            const bool isReached = begin->style & TAB_STOP || (isRadioButton(*begin) && hasButton);
            if (isWorked(*begin) && !isReached)
                found.push_back(nameOf(begin->id) + L" can't be reached by the Tab key: give it WS_TABSTOP");
        }
    }
}

std::optional<TextRoom> roomOfStatic(const DialogTemplateControl& control) {
    TextRoom room{control.width, control.height, true, !(control.style & NO_PREFIX)};
    switch (control.style & STATIC_KIND) {
        case 0x0:  // SS_LEFT
        case 0x1:  // SS_CENTER
        case 0x2:  // SS_RIGHT
            room.wraps = !(control.style & CENTER_IMAGE);
            return room;
        case 0xB:  // SS_SIMPLE
        case 0xC:  // SS_LEFTNOWORDWRAP
            room.wraps = false;
            return room;
        default:
            return std::nullopt;
    }
}

std::optional<TextRoom> roomOfButton(const DialogTemplateControl& control) {
    if (control.style & PICTURE_BUTTON || control.exStyle & SLIDE_EX_STYLE) return std::nullopt;
    TextRoom room{control.width, control.height, (control.style & MULTI_LINE_BUTTON) != 0};
    switch (control.style & BUTTON_KIND) {
        case 0x0:  // BS_PUSHBUTTON
        case 0x1:  // BS_DEFPUSHBUTTON
            room.width -= PUSH_BUTTON_BORDER;
            return room;
        case 0x7:  // BS_GROUPBOX
            room.width -= GROUP_BOX_BORDER;
            return room;
        case 0xB:  // BS_OWNERDRAW
            return std::nullopt;
        default:
            room.width -= CHECK_MARK_WIDTH;
            return room;
    }
}

bool overlap(const DialogTemplateControl& a, const DialogTemplateControl& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

// Frames and tab controls go to the bottom one after the other, in the order of their ids.
void checkPages(const DialogTemplate& dialog, Words& found) {
    for (const DialogTemplateControl& tab : dialog.controls) {
        if (!equalIgnoringCase(tab.className, L"SysTabControl32")) continue;
        for (const DialogTemplateControl& frame : dialog.controls)
            if (frame.className == L"Button" && frame.style == FRAME_STYLE && frame.id > tab.id &&
                overlap(frame, tab))
                found.push_back(nameOf(frame.id) + L" is a frame that the tab " + nameOf(tab.id) +
                                L" covers: give it a lower id than the tab control");
    }
}

// Nothing for controls that show no text of the template, or scroll it.
std::optional<TextRoom> roomFor(const DialogTemplateControl& control) {
    if (control.className == L"Static") return roomOfStatic(control);
    if (control.className == L"Button") return roomOfButton(control);
    return std::nullopt;
}

// A line of text in an edit box, whatever it says.
bool isTooLow(const DialogTemplateControl& control, const FitsRoom& fits) {
    const int within = control.height - EDIT_BORDERS;
    return equalIgnoringCase(control.className, L"Edit") && !(control.style & MULTI_LINE_EDIT) &&
           !fits(L"Ag", {control.width, within});
}

void checkClasses(const DialogTemplate& dialog, const DialogSurroundings& surroundings, Words& found) {
    for (const DialogTemplateControl& control : dialog.controls)
        if (!surroundings.knowsClass(control.className))
            found.push_back(nameOf(control.id) + L" is of the window class " + quoted(control.className) +
                            L", which nobody registers, so the dialog never shows: use another class");
}

}  // namespace

Words findClippedTexts(const DialogTemplate& dialog, const DialogSurroundings& surroundings) {
    Words found;
    for (const DialogTemplateControl& control : dialog.controls) {
        const auto room = roomFor(control);
        const bool isIcon = findIconCaption(surroundings.iconCaptions, control) != nullptr;
        if (room && !isIcon && !control.text.empty() && !surroundings.fits(control.text, *room))
            found.push_back(nameOf(control.id) + L" cuts off its text " + quoted(control.text) +
                            L": make it larger, or the text shorter");
        if (isTooLow(control, surroundings.fits))
            found.push_back(nameOf(control.id) + L" is too low for a line of text: make it higher");
    }
    return found;
}

Words findMismatches(const KeyListText& keys, const DialogTemplate& dialog,
                     const DialogSurroundings& surroundings) {
    Words found;
    checkName(keys.name, found);
    checkKeys(keys, dialog, found);
    checkIds(keys, dialog, found);
    checkClasses(dialog, surroundings, found);
    checkMnemonics(dialog, surroundings, found);
    checkTabKey(dialog, found);
    checkPages(dialog, found);
    for (std::wstring& text : findClippedTexts(dialog, surroundings)) found.push_back(std::move(text));
    return found;
}
