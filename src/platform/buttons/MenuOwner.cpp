#include "src/platform/buttons/MenuOwner.h"

#include <commctrl.h>

#include <string>

#include "src/platform/base/Text.h"

namespace {

// The platform adds as much to what an item asks for.
int widthAdded() { return GetSystemMetrics(SM_CXMENUCHECK) - 1; }

}  // namespace

MenuOwner::MenuOwner(HWND window, BCMenu& menu) : m_window(window), m_menu(menu), m_look(window) {
    menu.measureItems(m_look);
    SetWindowSubclass(window, &procedure, reinterpret_cast<UINT_PTR>(this),
                      reinterpret_cast<DWORD_PTR>(this));
}

MenuOwner::~MenuOwner() { RemoveWindowSubclass(m_window, &procedure, reinterpret_cast<UINT_PTR>(this)); }

LRESULT CALLBACK MenuOwner::procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
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

bool MenuOwner::measure(MEASUREITEMSTRUCT& asked) const {
    if (asked.CtlType != ODT_MENU) return false;
    const auto& item = *reinterpret_cast<const BCMenu::Item*>(asked.itemData);
    const MenuMetrics& metrics = item.menu.m_metrics;
    asked.itemWidth = static_cast<UINT>(menuItemWidth(metrics) - widthAdded());
    asked.itemHeight =
        static_cast<UINT>(item.isSeparator ? menuSeparatorHeight(metrics) : menuItemHeight(metrics));
    return true;
}

bool MenuOwner::draw(const DRAWITEMSTRUCT& asked) const {
    if (asked.CtlType != ODT_MENU) return false;
    const auto& item = *reinterpret_cast<const BCMenu::Item*>(asked.itemData);
    MenuItemLook look;
    look.text = item.text;
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
LRESULT MenuOwner::key(wchar_t letter, HMENU handle) const {
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
