#include "src/platform/buttons/BCMenuBar.h"

#include <commctrl.h>

#include <utility>

#include "src/platform/buttons/MenuOwner.h"

BCMenuBar::BCMenuBar(HWND window, std::vector<Entry> entries)
    : m_window(window), m_bar(CreateMenu()), m_entries(std::move(entries)) {
    for (const Entry& entry : m_entries) {
        BCMenu& menu = *m_menus.emplace_back(std::make_unique<BCMenu>());
        menu.m_isOwned = false;
        AppendMenuW(m_bar, MF_POPUP | MF_STRING, reinterpret_cast<UINT_PTR>(menu.handle()),
                    entry.text.c_str());
    }
    SetMenu(window, m_bar);
    SetWindowSubclass(window, &procedure, reinterpret_cast<UINT_PTR>(this),
                      reinterpret_cast<DWORD_PTR>(this));
}

BCMenuBar::~BCMenuBar() {
    m_owner.reset();
    // A window that has gone has taken its menu along.
    if (!IsWindow(m_window)) return;
    RemoveWindowSubclass(m_window, &procedure, reinterpret_cast<UINT_PTR>(this));
    SetMenu(m_window, nullptr);
    DestroyMenu(m_bar);
}

LRESULT CALLBACK BCMenuBar::procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                      DWORD_PTR self) noexcept {
    if (message == WM_INITMENUPOPUP) reinterpret_cast<BCMenuBar*>(self)->opens(reinterpret_cast<HMENU>(w));
    return DefSubclassProc(window, message, w, l);
}

void BCMenuBar::opens(HMENU handle) {
    for (size_t at = 0; at < m_menus.size(); ++at) {
        BCMenu& menu = *m_menus[at];
        if (menu.handle() != handle) continue;
        m_owner.reset();
        menu.clear();
        m_entries[at].fill(menu);
        m_owner = std::make_unique<MenuOwner>(m_window, menu);
    }
}
