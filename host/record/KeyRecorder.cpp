#include "host/record/KeyRecorder.h"

#include <commctrl.h>

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

std::wstring textWithLineFeeds(HWND edit) {
    std::wstring text = textOf(edit);
    std::erase(text, L'\r');
    return text;
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

bool caretIsAtEnd(HWND edit) {
    DWORD from = 0, to = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return from == to && to == static_cast<DWORD>(GetWindowTextLengthW(edit));
}

// Whether Space does the same as a click.
bool isClickedBySpace(HWND window) {
    const bool isPicture = SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC;
    if (!hasWindowClass(window, WC_BUTTONW) || isPicture) return false;
    const LONG kind = GetWindowLongW(window, GWL_STYLE) & BS_TYPEMASK;
    return kind != BS_OWNERDRAW && kind != BS_RADIOBUTTON && kind != BS_AUTORADIOBUTTON &&
           kind != BS_GROUPBOX;
}

}  // namespace

void KeyRecorder::update() {
    resolveFocus();
    // What comes of the text when the box was left is the program's.
    if (m_typing && GetFocus() != m_typing->edit) m_typing.reset();
    if (!m_typing) return;
    const std::wstring now = textWithLineFeeds(m_typing->edit);
    const bool isNew = now != m_typing->before || m_typing->isForced;
    m_journal.setForm(m_typing->step, isNew
                                          ? L"(ui_type " + m_typing->tile.name + L" " + lispString(now) + L")"
                                          : std::wstring());
}

void KeyRecorder::endTyping(HWND dialog) {
    update();
    m_typing.reset();
    // A box or a dialog that a new line has brought up leaves the caret where it is.
    if (m_singly && dialogOf(m_singly) == dialog) m_singly = nullptr;
    m_told = 0;
}

void KeyRecorder::windowGone(HWND window) {
    if (m_typing && (m_typing->edit == window || m_typing->dialog == window)) m_typing.reset();
    if (m_singly == window) m_singly = nullptr;
}

// Where Tab or a mnemonic has led is known when the key was handled. A button that was reached by its
// mnemonic was clicked, and a radio button is clicked by the focus.
void KeyRecorder::resolveFocus() {
    if (!m_moved) return;
    RecordedStep& step = m_journal.recording().at(*m_moved);
    m_moved.reset();
    const HWND focus = GetFocus();
    if (focus == m_movedFrom) return;  // what else the key does there comes again
    const bool isEdit = hasWindowClass(focus, WC_EDITW);
    if (!isEdit && !(m_byTab && isClickedBySpace(focus))) return;
    const NamedTile tile = tileOf(focus, dialogOf(focus));
    if (!tile || gridOf(tile.window)) return;
    step.kind = Kind::focus;
    step.tile = tile.name;
}

void KeyRecorder::type(HWND edit, HWND dialog) {
    if (m_typing && m_typing->edit == edit) return;
    endTyping(dialog);
    const NamedTile tile = tileOf(edit, dialog);
    if (!tile) return;
    const Recording::Place step = m_journal.add(dialog, {Kind::type, tile.name, {}, {}});
    m_typing = Typing{dialog, edit, tile, textWithLineFeeds(edit), step};
}

void KeyRecorder::addKey(const MSG& message, HWND dialog, const KeyStroke& stroke) {
    const std::wstring form = keyForm(stroke);
    if (form.empty()) return;
    const Recording::Place place = m_journal.add(dialog, {Kind::other, {}, form, {}});
    m_told = message.lParam & SCAN_CODE;
    m_byTab = stroke.virtualKey == VK_TAB;
    if (!m_byTab && !stroke.alt) return;
    m_moved = place;
    m_movedFrom = GetFocus();
}

void KeyRecorder::keyDown(const MSG& message, HWND dialog) {
    const KeyStroke stroke = strokeOf(message);
    if (isModifier(message.wParam)) return;
    const bool closes = stroke.alt && stroke.virtualKey == VK_F4;  // told as what comes of it
    if (closes) return endTyping(dialog);
    const HWND window = message.hwnd;
    const bool isEdit = hasWindowClass(window, WC_EDITW);
    const NamedTile tile = tileOf(window, dialog);
    const bool ofGrid = tile && gridOf(tile.window);
    const bool isText = isEdit && !ofGrid && !leavesText(window, stroke);
    if (isText && window == m_singly) {
        if (!isPrintable(stroke) && stroke.virtualKey != VK_RETURN) addKey(message, dialog, stroke);
        return;
    }
    if (isText) return type(window, dialog);
    endTyping(dialog);
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
    endTyping(dialog);
    m_journal.add(dialog, {Kind::other, {}, keyForm({static_cast<int>(key)}), {}});
}

void KeyRecorder::character(const MSG& message, HWND dialog) {
    const LPARAM scan = message.lParam & SCAN_CODE;
    if (m_told && scan == m_told) return;
    const NamedTile tile = tileOf(message.hwnd, dialog);
    const bool isEdit = hasWindowClass(message.hwnd, WC_EDITW);
    if (!isEdit || gridOf(tile.window) || message.hwnd == m_singly) return addCharacter(message, dialog);
    if (message.wParam != VK_RETURN && message.wParam != VK_ESCAPE) return type(message.hwnd, dialog);
    typeControl(message, dialog);
}

// Enter and Esc as characters end the editing of a box, or bring back its text. Behind what was typed a
// session has the caret where it was, and goes on key by key; otherwise the text that the new line makes is
// told in any case.
void KeyRecorder::typeControl(const MSG& message, HWND dialog) {
    update();
    const bool isAtEnd =
        m_typing && !m_journal.recording().at(m_typing->step).form.empty() && caretIsAtEnd(message.hwnd);
    endTyping(dialog);
    addCharacter(message, dialog);
    const bool hasLines = GetWindowLongW(message.hwnd, GWL_STYLE) & ES_MULTILINE;
    if (!hasLines || message.wParam != VK_RETURN) return;
    if (isAtEnd) {
        m_singly = message.hwnd;
        return;
    }
    type(message.hwnd, dialog);
    if (m_typing) m_typing->isForced = true;
}

// The whole text of a cell's open editor is marked, and gives way to the character.
void KeyRecorder::addMarking(HWND editor, HWND dialog) {
    DWORD from = 0, to = 0;
    SendMessageW(editor, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    const std::wstring form = keyForm({.virtualKey = 'A', .control = true});
    const RecordedStep* last = m_journal.recording().last();
    const bool isTold = last && last->form == form;
    if (!isTold && from == 0 && to > 0 && to == static_cast<DWORD>(GetWindowTextLengthW(editor)))
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
