#include "src/platform/gridlib/CellEditor.h"

#include <algorithm>
#include <utility>

namespace {

// Room for the list of choices, below the cell.
constexpr int SHOWN_CHOICES = 8;

// Letters that follow later, in milliseconds, begin another word.
constexpr LONG LONGEST_BETWEEN_LETTERS = 1000;

bool isDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

const MessageMap& CellEditor::TextField::messageMap() const {
    static const MessageMap map(CEdit::messageMap(), {
                                                         onRaw<WM_GETDLGCODE, &TextField::onGetDlgCode>(),
                                                         onRaw<WM_KEYDOWN, &TextField::onKeyDown>(),
                                                         onRaw<WM_CHAR, &TextField::onChar>(),
                                                         onRaw<WM_KILLFOCUS, &TextField::onKillFocus>(),
                                                         onReflected<EN_CHANGE, &TextField::onChange>(),
                                                     });
    return map;
}

LRESULT CellEditor::TextField::onGetDlgCode(WPARAM w, LPARAM l) {
    return DefWindowProc(WM_GETDLGCODE, w, l) | DLGC_WANTALLKEYS;
}

LRESULT CellEditor::TextField::onKeyDown(WPARAM key, LPARAM l) {
    if (key == 'A' && isDown(VK_CONTROL) && !isDown(VK_MENU)) return SendMessage(EM_SETSEL, 0, -1);
    return m_editor.endsBy(key, false) ? 0 : DefWindowProc(WM_KEYDOWN, key, l);
}

// The characters of the keys that end it aren't text, nor is that of Ctrl+A.
LRESULT CellEditor::TextField::onChar(WPARAM c, LPARAM l) {
    if (c == VK_TAB || c == VK_ESCAPE || c == 1 || (c == VK_RETURN && !isDown(VK_CONTROL))) return 0;
    if (c == L'\n') c = L'\r';
    return DefWindowProc(WM_CHAR, c, l);
}

LRESULT CellEditor::TextField::onKillFocus(WPARAM w, LPARAM l) {
    const LRESULT result = DefWindowProc(WM_KILLFOCUS, w, l);
    m_editor.ends(Ending::stay);
    return result;
}

const MessageMap& CellEditor::ChoiceField::messageMap() const {
    static const MessageMap map(CComboBox::messageMap(),
                                {
                                    onRaw<WM_GETDLGCODE, &ChoiceField::onGetDlgCode>(),
                                    onRaw<WM_KEYDOWN, &ChoiceField::onKeyDown>(),
                                    onRaw<WM_CHAR, &ChoiceField::onChar>(),
                                    onReflected<CBN_SELCHANGE, &ChoiceField::onChosen>(),
                                    onReflected<CBN_KILLFOCUS, &ChoiceField::onKillFocus>(),
                                });
    return map;
}

LRESULT CellEditor::ChoiceField::onGetDlgCode(WPARAM w, LPARAM l) {
    return DefWindowProc(WM_GETDLGCODE, w, l) | DLGC_WANTALLKEYS;
}

// While the list is down its keys are its own: Enter takes, Esc closes.
LRESULT CellEditor::ChoiceField::onKeyDown(WPARAM key, LPARAM l) {
    if (!isDropped() && m_editor.endsBy(key, true)) return 0;
    return DefWindowProc(WM_KEYDOWN, key, l);
}

// Finds the choice that begins with what was typed; one letter again and again goes to the next that begins
// with it. The platform's own list finds single letters only under Wine.
LRESULT CellEditor::ChoiceField::onChar(WPARAM c, LPARAM l) {
    if (c == VK_TAB || c == VK_RETURN || c == VK_ESCAPE) return 0;
    if (c < L' ') return DefWindowProc(WM_CHAR, c, l);
    const LONG now = GetMessageTime();
    if (now - std::exchange(m_typedAt, now) > LONGEST_BETWEEN_LETTERS) m_typed.clear();
    m_typed += static_cast<wchar_t>(c);
    const bool isOneLetter = m_typed.find_first_not_of(m_typed[0]) == CString::npos;
    const CString sought = isOneLetter ? m_typed.substr(0, 1) : m_typed;
    const LRESULT from = isOneLetter ? SendMessage(CB_GETCURSEL) : CB_ERR;
    const LRESULT found =
        SendMessage(CB_FINDSTRING, static_cast<WPARAM>(from), reinterpret_cast<LPARAM>(sought.c_str()));
    if (found == CB_ERR) return 0;
    SendMessage(CB_SETCURSEL, static_cast<WPARAM>(found));
    m_editor.changed();
    return 0;
}

// Whether that key ends the editing; then it has.
bool CellEditor::endsBy(WPARAM key, bool isChoice) {
    const bool shift = isDown(VK_SHIFT), control = isDown(VK_CONTROL);
    const bool arrowsMove = m_byTyping && !isChoice;
    Ending ending;
    switch (key) {
        case VK_RETURN:
            if (control && m_field == &m_lines) return false;
            ending = shift ? Ending::up : Ending::down;
            break;
        case VK_TAB:
            ending = shift ? Ending::previous : Ending::next;
            break;
        case VK_ESCAPE:
            ending = Ending::giveUp;
            break;
        case VK_UP:
        case VK_DOWN:
            if (isChoice || (m_field == &m_lines && !arrowsMove)) return false;
            ending = key == VK_UP ? Ending::up : Ending::down;
            break;
        case VK_LEFT:
        case VK_RIGHT:
            if (!arrowsMove || shift || control) return false;
            ending = key == VK_LEFT ? Ending::left : Ending::right;
            break;
        case VK_F2:
            m_byTyping = !m_byTyping;
            return true;
        default:
            return false;
    }
    ends(ending);
    return true;
}

void CellEditor::changed() {
    if (!m_filling && m_field) m_owner.editorChanged();
}

void CellEditor::ends(Ending ending) {
    if (m_field) m_owner.editorEnds(ending);
}

bool CellEditor::create(CWnd& field, HWND parent, const wchar_t* className, DWORD style) {
    if (field.m_hWnd) return true;
    if (!field.CreateEx(0, className, L"", WS_CHILD | style, RECT{}, parent, 0)) return false;
    field.SetFont(m_font);
    return true;
}

void CellEditor::setFont(HFONT font) {
    m_font = font;
    for (CWnd* field :
         {static_cast<CWnd*>(&m_line), static_cast<CWnd*>(&m_lines), static_cast<CWnd*>(&m_choice)})
        if (field->m_hWnd) field->SetFont(font);
}

bool CellEditor::open(HWND parent, const CGXStyle& style, const CString& text, bool byTyping) {
    const CellKind kind = cellKind(style);
    m_byTyping = byTyping;
    m_placed = {};
    if (kind == CellKind::choice) {
        if (!create(m_choice, parent, L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL)) return false;
        m_choice.SendMessage(CB_RESETCONTENT);
        m_choice.forgetTyped();
        for (const CString& choice : style.choices())
            m_choice.SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.c_str()));
        m_field = &m_choice;
    } else if (kind == CellKind::wrappedText || text.find(L'\n') != CString::npos) {
        if (!create(m_lines, parent, L"EDIT", ES_MULTILINE | ES_AUTOVSCROLL)) return false;
        m_field = &m_lines;
    } else {
        if (!create(m_line, parent, L"EDIT", ES_AUTOHSCROLL)) return false;
        m_field = &m_line;
    }
    setText(text);
    if (kind != CellKind::choice) m_field->SendMessage(EM_EMPTYUNDOBUFFER);
    return true;
}

void CellEditor::place(const RECT& rect) {
    if (!m_field || EqualRect(&rect, &m_placed)) return;
    const bool isFirst = IsRectEmpty(&m_placed);
    m_placed = rect;
    if (rect.left >= rect.right || rect.top >= rect.bottom) return m_field->ShowWindow(SW_HIDE);
    RECT window = rect;
    if (m_field == &m_choice) {
        // The part that shows is as high as its text; the rest of the height is the list's.
        const int height = rect.bottom - rect.top;
        m_choice.SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max(height - 6, 8));
        const auto line = static_cast<int>(m_choice.SendMessage(CB_GETITEMHEIGHT, 0));
        window.bottom = rect.bottom + line * SHOWN_CHOICES + 2;
    }
    m_field->MoveWindow(window);
    m_field->ShowWindow(SW_SHOW);
    // What was set before the window had its width may be scrolled out of it.
    if (isFirst && m_field != &m_choice) {
        m_field->SendMessage(EM_SETSEL, 0, 0);
        m_field->SendMessage(EM_SCROLLCARET);
        m_field->SendMessage(EM_SETSEL, 0, -1);
    }
    if (!owns(::GetFocus())) m_field->SetFocus();
}

void CellEditor::dropDown() {
    if (m_field == &m_choice) m_choice.SendMessage(CB_SHOWDROPDOWN, TRUE);
}

void CellEditor::close() {
    CWnd* field = std::exchange(m_field, nullptr);
    if (!field) return;
    if (field == &m_choice) m_choice.SendMessage(CB_SHOWDROPDOWN, FALSE);
    field->ShowWindow(SW_HIDE);
}

CString CellEditor::text() const {
    if (!m_field) return {};
    if (m_field == &m_choice && m_choice.SendMessage(CB_GETCURSEL) == CB_ERR) return {};
    // An edit box has CR and LF where a cell has LF.
    return without(m_field->GetWindowText(), L"\r");
}

void CellEditor::setText(const CString& text) {
    m_filling = true;
    if (m_field == &m_choice) {
        m_choice.SendMessage(CB_SETCURSEL, m_choice.SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                                                reinterpret_cast<LPARAM>(text.c_str())));
    } else {
        CString lines;
        for (const wchar_t c : text) {
            if (c == L'\n') lines += L'\r';
            if (c != L'\r') lines += c;
        }
        m_field->SetWindowText(lines);
        m_field->SendMessage(EM_SETSEL, 0, -1);
    }
    m_filling = false;
}

void CellEditor::type(wchar_t c) {
    if (m_field) m_field->SendMessage(WM_CHAR, c, 1);
}
