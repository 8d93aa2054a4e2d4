#include "src/buttons/BCMenu.h"

#include <commctrl.h>

#include <utility>

#include "src/platform/base/Text.h"

namespace {

// The platform adds as much to what an item asks for.
int widthAdded() { return GetSystemMetrics(SM_CXMENUCHECK) - 1; }

MenuItemLook lookOf(const std::wstring& text) {
    MenuItemLook look;
    look.text = text;
    return look;
}

bool isDefaultItem(HMENU menu, size_t position) {
    return (GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MFS_DEFAULT) != 0;
}

}  // namespace

// Answers what the platform asks of a menu's owner, while the menu shows.
class MenuOwner {
  public:
    MenuOwner(HWND window, BCMenu& menu) : m_window(window), m_menu(menu), m_look(window) {
        menu.measureItems(m_look);
        SetWindowSubclass(window, &procedure, reinterpret_cast<UINT_PTR>(this),
                          reinterpret_cast<DWORD_PTR>(this));
    }
    ~MenuOwner() { RemoveWindowSubclass(m_window, &procedure, reinterpret_cast<UINT_PTR>(this)); }
    MenuOwner(const MenuOwner&) = delete;
    MenuOwner& operator=(const MenuOwner&) = delete;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                      DWORD_PTR self) noexcept {
        const auto& owner = *reinterpret_cast<const MenuOwner*>(self);
        switch (message) {
            case WM_MEASUREITEM:
                if (owner.measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(l))) return TRUE;
                break;
            case WM_DRAWITEM:
                if (owner.draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(l))) return TRUE;
                break;
            case WM_MENUCHAR:
                if (const LRESULT answer = owner.key(LOWORD(w), reinterpret_cast<HMENU>(l))) return answer;
                break;
        }
        return DefSubclassProc(window, message, w, l);
    }

    // Only menus of this object show while the owner is watched.
    bool measure(MEASUREITEMSTRUCT& asked) const {
        if (asked.CtlType != ODT_MENU) return false;
        const auto& item = *reinterpret_cast<const BCMenu::Item*>(asked.itemData);
        const MenuMetrics& metrics = item.menu.m_metrics;
        asked.itemWidth = static_cast<UINT>(menuItemWidth(metrics) - widthAdded());
        asked.itemHeight =
            static_cast<UINT>(item.isSeparator ? menuSeparatorHeight(metrics) : menuItemHeight(metrics));
        return true;
    }

    bool draw(const DRAWITEMSTRUCT& asked) const {
        if (asked.CtlType != ODT_MENU) return false;
        const auto& item = *reinterpret_cast<const BCMenu::Item*>(asked.itemData);
        MenuItemLook look = lookOf(item.text);
        look.icon = item.icon.get();
        look.mark = item.mark;
        look.isSeparator = item.isSeparator;
        look.opensMenu = item.opens != nullptr;
        look.disabled = asked.itemState & (ODS_DISABLED | ODS_GRAYED);
        look.selected = asked.itemState & ODS_SELECTED && !item.isSeparator;
        look.isDefault = asked.itemState & ODS_DEFAULT;
        look.hidesMnemonic = asked.itemState & ODS_NOACCEL;
        m_look.draw(asked.hDC, asked.rcItem, look, item.menu.m_metrics);
        // The platform would draw an arrow of its own over that of a sub-menu.
        if (item.opens)
            ExcludeClipRect(asked.hDC, asked.rcItem.left, asked.rcItem.top, asked.rcItem.right,
                            asked.rcItem.bottom);
        return true;
    }

    // 0 where no item has that letter.
    LRESULT key(wchar_t letter, HMENU handle) const {
        const BCMenu* menu = m_menu.find(handle);
        if (!menu) return 0;
        std::wstring mnemonics;
        int current = -1;
        for (size_t at = 0; at < menu->m_items.size(); ++at) {
            const auto mnemonic = mnemonicOf(splitMenuText(menu->m_items[at]->text).label);
            mnemonics += mnemonic.value_or(L'\0');
            if (GetMenuState(handle, static_cast<UINT>(at), MF_BYPOSITION) & MF_HILITE)
                current = static_cast<int>(at);
        }
        const MenuKeyAnswer answer = answerMenuKey(mnemonics, letter, current);
        if (answer.item < 0) return 0;
        return MAKELRESULT(answer.item, answer.chooses ? MNC_EXECUTE : MNC_SELECT);
    }

    HWND m_window;
    BCMenu& m_menu;
    MenuLook m_look;
};

BCMenu::BCMenu() : m_menu(CreatePopupMenu()) {}

BCMenu::~BCMenu() {
    if (m_isOwned) DestroyMenu(m_menu);
}

void BCMenu::add(UINT command, std::wstring text, unsigned states, UniqueIcon icon) {
    append(std::move(text), command, states, std::move(icon), false);
}

void BCMenu::addSeparator() { append({}, 0, DISABLED, nullptr, true); }

BCMenu& BCMenu::addMenu(std::wstring text, UniqueIcon icon) {
    auto opens = std::make_unique<BCMenu>();
    opens->m_isOwned = false;
    return *append(std::move(text), 0, 0, std::move(icon), false, std::move(opens)).opens;
}

BCMenu::Item& BCMenu::append(std::wstring text, UINT command, unsigned states, UniqueIcon icon,
                             bool isSeparator, std::unique_ptr<BCMenu> opens) {
    const MenuMark mark = states & RADIO     ? MenuMark::radio
                          : states & CHECKED ? MenuMark::check
                                             : MenuMark::none;
    Item& item = *m_items.emplace_back(std::make_unique<Item>(
        Item{{}, *this, std::move(text), std::move(icon), mark, isSeparator, std::move(opens)}));
    item.accessible = {static_cast<DWORD>(MSAA_MENU_SIG), static_cast<DWORD>(item.text.size()),
                       item.text.data()};
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask =
        MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_DATA | MIIM_SUBMENU | (isSeparator ? 0 : MIIM_STRING);
    info.fType = MFT_OWNERDRAW | (isSeparator ? MFT_SEPARATOR : 0) | (states & RADIO ? MFT_RADIOCHECK : 0);
    info.fState = (states & DISABLED ? MFS_DISABLED : 0) | (states & (CHECKED | RADIO) ? MFS_CHECKED : 0) |
                  (states & DEFAULT ? MFS_DEFAULT : 0);
    info.wID = command;
    info.hSubMenu = item.opens ? item.opens->m_menu : nullptr;
    info.dwItemData = reinterpret_cast<ULONG_PTR>(&item);
    info.dwTypeData = item.text.data();
    InsertMenuItemW(m_menu, static_cast<UINT>(m_items.size() - 1), TRUE, &info);
    return item;
}

BCMenu* BCMenu::find(HMENU menu) {
    if (menu == m_menu) return this;
    for (const auto& item : m_items)
        if (BCMenu* found = item->opens ? item->opens->find(menu) : nullptr) return found;
    return nullptr;
}

void BCMenu::measureItems(const MenuLook& look) {
    m_metrics = look.metrics();
    for (size_t at = 0; at < m_items.size(); ++at) {
        MenuItemLook item = lookOf(m_items[at]->text);
        item.isDefault = isDefaultItem(m_menu, at);
        look.measure(item, m_metrics);
        if (m_items[at]->opens) m_items[at]->opens->measureItems(look);
    }
}

UINT BCMenu::track(HWND owner, POINT at) {
    const MenuOwner answers(owner, *this);
    const UINT side = GetSystemMetrics(SM_MENUDROPALIGNMENT) ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
    const int chosen =
        TrackPopupMenuEx(m_menu, side | TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, owner, nullptr);
    // Wine gives a number below 0 where a sub-menu was closed by Esc.
    return chosen > 0 ? static_cast<UINT>(chosen) : 0;
}
