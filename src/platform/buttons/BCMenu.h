// A popup menu that draws itself: icons, check and radio marks, shortcuts, default items, sub-menus. The
// mouse, the keyboard and assistive programs find the platform's own menu.
//
//     BCMenu menu;
//     menu.add(COPY, L"&Copy\tCtrl+C", 0, std::move(icon));
//     if (menu.track(m_hWnd, at) == COPY) …
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <memory>
#include <string>
#include <vector>

#include "src/platform/buttons/MenuLook.h"

class BCMenu {
  public:
    enum State : unsigned { NORMAL = 0, DISABLED = 1, CHECKED = 2, RADIO = 4, DEFAULT = 8 };

    BCMenu();
    ~BCMenu();
    BCMenu(const BCMenu&) = delete;
    BCMenu& operator=(const BCMenu&) = delete;

    // `command` isn't 0. A text has "&" before its mnemonic, and its shortcut behind a tab. `states` are bits
    // of State: CHECKED has a tick, RADIO the mark of the one chosen of several.
    void add(UINT command, std::wstring text, unsigned states = NORMAL, UniqueIcon icon = nullptr);
    void addSeparator();
    // The menu that opens there; this one's.
    BCMenu& addMenu(std::wstring text, UniqueIcon icon = nullptr);
    // Takes all items out, and the menus below; never while it shows.
    void clear();

    // Shows the menu at that point of the screen until the person has chosen; gives the command, or 0 where
    // none was chosen. What the platform asks of the menu's owner is answered meanwhile, and Lisp may run:
    // the owner may be gone afterwards.
    UINT track(HWND owner, POINT at);

    HMENU handle() const { return m_menu; }

  private:
    friend class MenuOwner;
    friend class BCMenuBar;

    // The platform keeps its address. An assistive program reads the text at its beginning.
    struct Item {
        MSAAMENUINFO accessible;
        BCMenu& menu;
        std::wstring text;
        UniqueIcon icon;
        MenuMark mark = MenuMark::none;
        bool isSeparator = false;
        std::unique_ptr<BCMenu> opens;
    };

    Item& append(std::wstring text, UINT command, unsigned states, UniqueIcon icon, bool isSeparator,
                 std::unique_ptr<BCMenu> opens = nullptr);
    // This menu or the one below it with that handle; null for none.
    BCMenu* find(HMENU menu);
    void measureItems(const MenuLook& look);

    HMENU m_menu;
    bool m_isOwned = true;  // not by the menu or the bar above
    std::vector<std::unique_ptr<Item>> m_items;
    MenuMetrics m_metrics;
};
