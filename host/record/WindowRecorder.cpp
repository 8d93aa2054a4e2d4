#include "host/record/WindowRecorder.h"

#include <commdlg.h>

#include <algorithm>

#include "host/drive/Menus.h"
#include "host/drive/MessageBoxes.h"
#include "host/record/TileNames.h"

namespace {

using Kind = RecordedStep::Kind;

std::wstring dragForm(const wchar_t* border, LONG right, LONG down) {
    return L"(ui_drag \"" + std::wstring(border) + L"\" " + std::to_wstring(right) + L" " +
           std::to_wstring(down) + L")";
}

// The name of the file that a dialog for files has now.
std::wstring chosenFile(HWND box) {
    wchar_t path[MAX_PATH] = {};
    const LRESULT length = SendMessageW(box, CDM_GETFILEPATH, MAX_PATH, reinterpret_cast<LPARAM>(path));
    return length > 0 ? path : L"";
}

}  // namespace

void WindowRecorder::closed(HWND dialog) { m_journal.add(dialog, {Kind::other, {}, L"(ui_close)", {}}); }

void WindowRecorder::sized(HWND dialog, UINT message, WPARAM edge) {
    if (message == WM_SIZING) m_edge = edge;
    if (message == WM_ENTERSIZEMOVE) {
        m_edge = 0;
        GetWindowRect(dialog, &m_before);
    }
    if (message != WM_EXITSIZEMOVE || m_edge == 0) return;
    RECT now;
    GetWindowRect(dialog, &now);
    const LONG left = now.left - m_before.left, top = now.top - m_before.top;
    const LONG right = now.right - m_before.right, bottom = now.bottom - m_before.bottom;
    const auto add = [&](std::wstring form) {
        m_journal.add(dialog, {Kind::other, {}, std::move(form), {}});
    };
    if (m_edge == WMSZ_BOTTOMRIGHT) {
        if (right || bottom) add(dragForm(L"GRIP", right, bottom));
        return;
    }
    if (left) add(dragForm(L"LEFT", left, 0));
    if (top) add(dragForm(L"TOP", 0, top));
    if (right) add(dragForm(L"RIGHT", right, 0));
    if (bottom) add(dragForm(L"BOTTOM", 0, bottom));
}

// A session presses OK, or the first button, unless it is told otherwise before the box comes up; and what it
// is told counts for the next box.
void WindowRecorder::answered(HWND box, int button) {
    const std::wstring name(boxButtonName(button));
    if (name.empty()) return;
    const std::wstring file = isMessageBox(box) || button != IDOK ? std::wstring() : chosenFile(box);
    const std::wstring form =
        L"(ui_answer " + lispString(name) + (file.empty() ? L"" : L" " + lispString(file)) + L")";
    Recording& recording = m_journal.recording();
    if (m_steps != recording.stepCount()) m_untold.clear();
    m_steps = recording.stepCount();
    m_untold.push_back(form);
    if (button == usualButton(box) && file.empty()) return;
    for (std::wstring& earlier : m_untold) recording.addBeforeLast(std::move(earlier));
    m_untold.clear();
    m_journal.write();
}

// The way to an item isn't told, but the item.
void WindowRecorder::addMenuItem(HWND dialog, const std::wstring& text) {
    m_journal.recording().dropMenuKeys();
    m_journal.add(dialog, {Kind::other, {}, L"(ui_menu " + lispString(text) + L")", {}});
}

void WindowRecorder::menuInput(const MSG& message, HMENU menu, HWND dialog) {
    const std::vector<MenuItem> items = menuItems(menu);
    switch (message.message) {
        case WM_KEYDOWN: {
            const auto selected =
                std::find_if(items.begin(), items.end(), [](const MenuItem& item) { return item.selected; });
            if (message.wParam == VK_RETURN && selected != items.end() && !selected->disabled)
                return addMenuItem(dialog, selected->text);
            // The mouse has taken the mark away from where the keys had moved it: nothing is taken.
            if (message.wParam == VK_RETURN && selected == items.end()) m_journal.recording().dropMenuKeys();
            const std::wstring form = keyForm({.virtualKey = static_cast<int>(message.wParam)});
            const bool isArrow = message.wParam >= VK_END && message.wParam <= VK_DOWN;
            if (!form.empty()) m_journal.add(dialog, {isArrow ? Kind::menuKey : Kind::other, {}, form, {}});
            return;
        }
        case WM_LBUTTONUP:
        case WM_RBUTTONUP: {
            const int at = MenuItemFromPoint(nullptr, menu, message.pt);
            if (at < 0 || at >= static_cast<int>(items.size())) return;
            if (!items[at].disabled && !items[at].isSeparator) addMenuItem(dialog, items[at].text);
            return;
        }
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
            // Beside the menu: it closes.
            if (MenuItemFromPoint(nullptr, menu, message.pt) < 0)
                m_journal.add(dialog, {Kind::other, {}, keyForm({.virtualKey = VK_ESCAPE}), {}});
            return;
    }
}
