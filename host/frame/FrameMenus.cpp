#include "host/frame/FrameMenus.h"

#include <filesystem>

#include "host/frame/FrameViews.h"
#include "host/frame/HelpPages.h"

namespace {

// In a text of a menu an ampersand that is to be seen stands twice.
std::wstring shown(const std::wstring& text) {
    std::wstring doubled;
    for (const wchar_t c : text) doubled.append(c == L'&' ? 2 : 1, c);
    return doubled;
}

}  // namespace

FrameMenu::FrameMenu(BCMenu& menu, HWND window)
    : m_menu(menu), m_iconSide(GetSystemMetricsForDpi(SM_CXSMICON, GetDpiForWindow(window))) {}

void FrameMenu::add(UINT id, unsigned states) {
    const FrameCommand& command = frameCommand(id);
    m_menu.add(id, menuText(command), states, frameIcon(command.icon, m_iconSide));
}

void FrameMenu::addPrograms(const std::vector<std::wstring>& programs) {
    BCMenu& recent = m_menu.addMenu(L"Recent &Programs");
    if (programs.empty()) recent.add(FIRST_RECENT, L"(none yet)", BCMenu::DISABLED);
    for (size_t at = 0; at < programs.size(); ++at) {
        const std::filesystem::path path = programs[programs.size() - 1 - at];
        recent.add(FIRST_RECENT + static_cast<UINT>(at), L"&" + std::to_wstring(at + 1) + L" " +
                                                             shown(path.filename().wstring()) + L"\t" +
                                                             path.parent_path().filename().wstring());
    }
}

void FrameMenu::addNames(const std::vector<NameGroup>& groups) {
    UINT command = FIRST_DIALOG;
    for (const NameGroup& group : groups) {
        BCMenu& menu = m_menu.addMenu(group.title);
        for (const std::wstring& name : group.names) menu.add(command++, L"&" + name);
    }
    if (groups.empty()) m_menu.add(command, L"(no dialogs are installed)", BCMenu::DISABLED);
}

void FrameMenu::addViews(std::optional<int> view, int style, bool enabled) {
    const unsigned state = enabled ? BCMenu::NORMAL : BCMenu::DISABLED;
    for (const UINT command : {FIT, ZOOM_IN, ZOOM_OUT}) add(command, state);
    addSeparator();
    for (int at = 0; at < VIEW_COUNT; ++at)
        add(FIRST_VIEW + at, state | (enabled && view == at ? BCMenu::RADIO : 0u));
    addSeparator();
    for (int at = 0; at < STYLE_COUNT; ++at)
        add(FIRST_STYLE + at, state | (enabled && style == STYLE_TYPES[at] ? BCMenu::RADIO : 0u));
}

void FrameMenu::addPages() {
    add(FIRST_PAGE);
    for (UINT at = 1; at < helpPages().size(); ++at) m_menu.add(FIRST_PAGE + at, helpPages()[at].text);
    addSeparator();
    add(ABOUT);
}
