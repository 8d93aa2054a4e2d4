#include "host/record/KeyRecorder.h"

#include <commctrl.h>

#include <algorithm>
#include <string_view>

#include "host/drive/GridWindow.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/WindowClass.h"

namespace {

using Kind = RecordedStep::Kind;

constexpr LPARAM SCAN_CODE = 0x00FF0000;

bool isDown(int key) { return GetKeyState(key) < 0; }

bool isModifier(WPARAM key) {
    return key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU || key == VK_CAPITAL || key == VK_NUMLOCK ||
           key == VK_LWIN || key == VK_RWIN;
}

KeyStroke strokeOf(const MSG& message) {
    return {static_cast<int>(message.wParam), isDown(VK_SHIFT), isDown(VK_CONTROL), isDown(VK_MENU)};
}

// A key that writes a character by itself.
bool isPrintable(const KeyStroke& stroke) {
    if (stroke.control != stroke.alt) return false;  // both together write some letters
    return (MapVirtualKeyW(stroke.virtualKey, MAPVK_VK_TO_CHAR) & 0xFFFF) >= L' ';
}

// Of a marked text both ends, of the caret twice its place.
struct Marking {
    DWORD from = 0, to = 0;
};

Marking markingOf(HWND edit) {
    Marking marking;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&marking.from),
                 reinterpret_cast<LPARAM>(&marking.to));
    return marking;
}

bool isAllMarked(HWND edit) {
    const Marking marking = markingOf(edit);
    return marking.from == 0 && marking.to == static_cast<DWORD>(GetWindowTextLengthW(edit));
}

std::wstring withLineFeeds(std::wstring text) {
    std::erase(text, L'\r');
    return text;
}

std::wstring rangeText(size_t from, size_t to) {
    return L" " + std::to_wstring(from) + L" " + std::to_wstring(to);
}

// How much both texts begin with alike. A line's end stays whole.
size_t alikeAtStart(std::wstring_view a, std::wstring_view b) {
    const size_t count = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    return count > 0 && a[count - 1] == L'\r' ? count - 1 : count;
}

// How much both texts end with alike.
size_t alikeAtEnd(std::wstring_view a, std::wstring_view b) {
    const size_t count = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first - a.rbegin();
    return count > 0 && a[a.size() - count] == L'\n' ? count - 1 : count;
}

bool isOfCombo(HWND edit) { return hasWindowClass(GetParent(edit), WC_COMBOBOXW); }

// Keys that a dialog or a combo box takes, whatever edit box has the focus.
bool leavesText(HWND edit, const KeyStroke& stroke) {
    const LONG style = GetWindowLongW(edit, GWL_STYLE);
    switch (stroke.virtualKey) {
        case VK_TAB:
        case VK_ESCAPE:
            return true;
        case VK_RETURN:
            return !(style & ES_MULTILINE && (style & ES_WANTRETURN || stroke.control));
        case VK_UP:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT:
            return isOfCombo(edit) || stroke.alt;
        case VK_F10:
            return !stroke.shift;
        default:
            return (stroke.virtualKey >= VK_F1 && stroke.virtualKey <= VK_F12) ||
                   (stroke.alt && !stroke.control);
    }
}

// Whether Space does the same as a click.
bool isClickedBySpace(HWND window) {
    const bool isPicture = SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC;
    if (!hasWindowClass(window, WC_BUTTONW) || isPicture) return false;
    const LONG kind = GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
    return kind != BS_OWNERDRAW && kind != BS_RADIOBUTTON && kind != BS_AUTORADIOBUTTON &&
           kind != BS_GROUPBOX;
}

// What has come at that place, where nothing else is new.
std::optional<std::wstring> insertedAt(size_t at, const std::wstring& before, const std::wstring& now) {
    if (now.size() < before.size() || at > before.size()) return std::nullopt;
    const size_t count = now.size() - before.size();
    const bool isAlike = now.compare(0, at, before, 0, at) == 0 &&
                         now.compare(at + count, now.npos, before, at, before.npos) == 0;
    return isAlike ? std::optional(now.substr(at, count)) : std::nullopt;
}

}  // namespace

void KeyRecorder::update() {
    resolveFocus();
    // What comes of the text when the box was left is the program's.
    if (m_typing && GetFocus() != m_typing->edit) m_typing.reset();
    if (!m_typing) return;
    const Typed typed = typedBy(*m_typing);
    const bool isOwn = typed.step == m_typing->step;
    if (isOwn && m_typing->line) setTyped(*m_typing->line, m_typing->tile);
    const bool isNothing = isOwn && textOf(m_typing->edit) == m_typing->before;
    if (!isNothing) setTyped(typed, m_typing->tile);
    if (!isOwn || isNothing) m_journal.setForm(m_typing->step, {});
}

void KeyRecorder::setTyped(const Typed& typed, const NamedTile& tile) {
    m_journal.setForm(typed.step, L"(ui_type " + tile.name + L" " + lispString(withLineFeeds(typed.text)) +
                                      typed.range + L")");
}

// A new line that is typed is an event, so in a text that has some only what is new is typed.
KeyRecorder::Typed KeyRecorder::typedBy(const Typing& typing) const {
    const std::wstring now = textOf(typing.edit);
    const std::wstring& before = typing.before;
    if (typing.line)
        if (const auto more = insertedAt(typing.line->caret, before, now))
            return {typing.line->step, typing.line->text + *more, typing.line->range,
                    typing.line->caret + static_cast<DWORD>(more->size())};
    const bool hasLines = before.find(L'\n') != before.npos || now.find(L'\n') != now.npos;
    if (typing.isWhole || !hasLines) return {typing.step, now, {}, static_cast<DWORD>(now.size())};
    const size_t start = alikeAtStart(before, now);
    const size_t end =
        alikeAtEnd(std::wstring_view(before).substr(start), std::wstring_view(now).substr(start));
    return {typing.step, now.substr(start, now.size() - start - end), rangeText(start, before.size() - end),
            static_cast<DWORD>(now.size() - end)};
}

void KeyRecorder::endTyping() {
    update();
    m_typing.reset();
    m_told = 0;
}

void KeyRecorder::windowGone(HWND window) {
    if (m_typing && (m_typing->edit == window || m_typing->dialog == window)) m_typing.reset();
    if (m_line.edit == window) m_line = {};
}

// Where Tab or a mnemonic has led is known when the key was handled. To a button it stays a step of its own:
// a mnemonic has clicked it, and Tab makes it the one that Enter presses, which the mouse doesn't.
void KeyRecorder::resolveFocus() {
    if (!m_moved) return;
    RecordedStep& step = m_journal.recording().at(*m_moved);
    m_moved.reset();
    const HWND focus = GetFocus();
    if (focus == m_movedFrom) return;  // what else the key does there comes again
    if (!hasWindowClass(focus, WC_EDITW)) return;
    const NamedTile tile = tileOf(focus, dialogOf(focus));
    if (!tile || gridOf(tile.window)) return;
    step.kind = Kind::focus;
    step.tile = tile.name;
}

void KeyRecorder::type(HWND edit, HWND dialog) {
    if (m_typing && m_typing->edit == edit) return;
    endTyping();
    const NamedTile tile = tileOf(edit, dialog);
    if (!tile) return;
    const Marking marking = markingOf(edit);
    const bool goesOn = m_line.edit == edit && m_journal.recording().isLast(m_line.last) &&
                        marking.from == marking.to && marking.to == m_line.typed->caret;
    const Recording::Place step = m_journal.add(dialog, {Kind::type, tile.name, {}, {}});
    m_typing = Typing{
        dialog, edit, tile, textOf(edit), isAllMarked(edit), step, goesOn ? m_line.typed : std::nullopt};
}

// What was typed until now is told with the new line behind it, where a session has the caret there too.
void KeyRecorder::typeLineEnd(HWND edit, HWND dialog) {
    type(edit, dialog);
    update();
    if (!m_typing) return;
    const Marking marking = markingOf(edit);
    Typed typed = typedBy(*m_typing);
    const NamedTile tile = m_typing->tile;
    Recording::Place last = m_typing->step;
    const bool isNew = m_journal.recording().at(typed.step).form.empty();
    // What is taken away is gone before the new line tells of the text.
    if (typed.text.empty() || marking.from != marking.to || marking.to != typed.caret) {
        if (!isNew) last = m_journal.add(dialog, {Kind::type, tile.name, {}, {}});
        typed = {last, {}, rangeText(marking.from, marking.to), marking.from};
    }
    typed.text += L'\n';
    typed.caret += 2;
    setTyped(typed, tile);
    m_line = {typed, edit, last};
    m_typing.reset();
}

void KeyRecorder::addKey(const MSG& message, HWND dialog, const KeyStroke& stroke) {
    const std::wstring form = keyForm(stroke);
    if (form.empty()) return;
    const Recording::Place place = m_journal.add(dialog, {Kind::other, {}, form, {}});
    m_told = message.lParam & SCAN_CODE;
    if (stroke.virtualKey != VK_TAB && !stroke.alt) return;
    m_moved = place;
    m_movedFrom = GetFocus();
}

void KeyRecorder::keyDown(const MSG& message, HWND dialog) {
    const KeyStroke stroke = strokeOf(message);
    if (isModifier(message.wParam)) return;
    const bool closes = stroke.alt && stroke.virtualKey == VK_F4;  // told as what comes of it
    if (closes) return endTyping();
    const HWND window = message.hwnd;
    const bool isEdit = hasWindowClass(window, WC_EDITW);
    const NamedTile tile = tileOf(window, dialog);
    const bool ofGrid = tile && gridOf(tile.window);
    const bool isText = isEdit && !ofGrid && !leavesText(window, stroke);
    if (isText) return type(window, dialog);
    endTyping();
    if (stroke.virtualKey == VK_SPACE && tile && isClickedBySpace(window) && !stroke.alt) {
        m_journal.add(dialog, {Kind::click, tile.name, L"(ui_click " + tile.name + L")", {}});
        m_told = message.lParam & SCAN_CODE;
        return;
    }
    // In a grid the characters count, and elsewhere the key that is let go, too.
    if (ofGrid && isPrintable(stroke)) return;
    addKey(message, dialog, stroke);
}

// A list control tells of every key that is let go, of those too that are held for a click.
void KeyRecorder::keyUp(const MSG& message, HWND dialog) {
    const WPARAM key = message.wParam;
    const bool isHeld = key == VK_SHIFT || key == VK_CONTROL || key == VK_MENU;
    if (!isHeld || !hasWindowClass(message.hwnd, WC_LISTVIEWW)) return;
    endTyping();
    m_journal.add(dialog, {Kind::other, {}, keyForm({static_cast<int>(key)}), {}});
}

void KeyRecorder::character(const MSG& message, HWND dialog) {
    const LPARAM scan = message.lParam & SCAN_CODE;
    if (m_told && scan == m_told) return;
    const NamedTile tile = tileOf(message.hwnd, dialog);
    const bool isEdit = hasWindowClass(message.hwnd, WC_EDITW);
    if (!isEdit || gridOf(tile.window)) return addCharacter(message, dialog);
    const bool endsLine = message.wParam == VK_RETURN;
    if (endsLine && GetWindowLongW(message.hwnd, GWL_STYLE) & ES_MULTILINE)
        return typeLineEnd(message.hwnd, dialog);
    if (!endsLine && message.wParam != VK_ESCAPE) return type(message.hwnd, dialog);
    // They end the editing of a box, or bring back its text.
    endTyping();
    addCharacter(message, dialog);
}

// The whole text of a cell's open editor is marked, and gives way to the character.
void KeyRecorder::addMarking(HWND editor, HWND dialog) {
    const std::wstring form = keyForm({.virtualKey = 'A', .control = true});
    const RecordedStep* last = m_journal.recording().last();
    const bool isTold = last && last->form == form;
    if (!isTold && isAllMarked(editor) && GetWindowTextLengthW(editor) > 0)
        m_journal.add(dialog, {Kind::other, {}, form, {}});
}

void KeyRecorder::addCharacter(const MSG& message, HWND dialog) {
    const NamedTile tile = tileOf(message.hwnd, dialog);
    if (hasWindowClass(message.hwnd, WC_EDITW) && gridOf(tile.window)) addMarking(message.hwnd, dialog);
    RecordedStep* last = m_journal.recording().last();
    const bool goesOn = last && last->kind == Kind::chars && last->tile == tile.name && !m_characters.empty();
    if (!goesOn) m_characters.clear();
    m_characters += static_cast<wchar_t>(message.wParam);
    // The first character opens the editor of a grid's cell.
    const bool opens = gridOf(message.hwnd) && message.wParam > L' ';
    const std::wstring text = lispString(m_characters);
    if (goesOn) {
        const bool isTyped = last->form.starts_with(L"(ui_type");
        last->form = (isTyped ? L"(ui_type " + tile.name + L" " : std::wstring(L"(ui_char ")) + text + L")";
        return m_journal.write();
    }
    m_journal.add(dialog,
                  {Kind::chars,
                   tile.name,
                   (opens ? L"(ui_type " + tile.name + L" " : std::wstring(L"(ui_char ")) + text + L")",
                   {}});
}
