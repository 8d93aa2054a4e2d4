#include "src/shell/TileMenu.h"

#include <algorithm>
#include <utility>

#include "src/platform/base/DialogResources.h"
#include "src/shell/Module.h"

namespace {

std::wstring textOf(MenuTextId id) { return loadString(g_resourceInstance, static_cast<UINT>(id)); }

// Where an icon can't be loaded, the item has none. Those of small icons are the size of a menu's.
UniqueIcon iconOf(MenuIcon icon) {
    if (icon == MenuIcon::none) return nullptr;
    const auto name = MAKEINTRESOURCEW(static_cast<UINT>(icon));
    return UniqueIcon(
        static_cast<HICON>(LoadImageW(g_resourceInstance, name, IMAGE_ICON, GetSystemMetrics(SM_CXSMICON),
                                      GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR)));
}

POINT placeOf(const CWnd& tile, LPARAM l, const RECT& focused) {
    if (!isFromKeyboard(l)) return {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))};
    const RECT client = tile.GetClientRect();
    POINT at = {std::clamp(focused.left, client.left, std::max(client.left, client.right - 1)),
                std::clamp(focused.bottom, client.top, std::max(client.top, client.bottom - 1))};
    ClientToScreen(tile.m_hWnd, &at);
    return at;
}

}  // namespace

void TileMenu::add(UINT command, MenuTextId text, MenuIcon icon, bool enabled) {
    m_menu.add(command, textOf(text), enabled ? BCMenu::NORMAL : BCMenu::DISABLED, iconOf(icon));
}

BCMenu& TileMenu::addMenu(MenuTextId text) { return m_menu.addMenu(textOf(text)); }

void TileMenu::addChoice(BCMenu& menu, UINT command, MenuTextId text, bool chosen) {
    menu.add(command, textOf(text), chosen ? BCMenu::RADIO : BCMenu::NORMAL);
}

UINT TileMenu::choose(const CWnd& tile, LPARAM l, const RECT& focused) {
    const UINT command = m_menu.track(tile.m_hWnd, placeOf(tile, l, focused));
    return tile.isLive() ? command : 0;
}
