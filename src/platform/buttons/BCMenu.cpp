#include "src/platform/buttons/BCMenu.h"

#include <utility>

#include "src/platform/buttons/MenuOwner.h"

namespace {

bool isDefaultItem(HMENU menu, size_t position) {
    return (GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MFS_DEFAULT) != 0;
}

}  // namespace

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

void BCMenu::clear() {
    while (DeleteMenu(m_menu, 0, MF_BYPOSITION)) continue;
    m_items.clear();
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
        MenuItemLook item;
        item.text = m_items[at]->text;
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
