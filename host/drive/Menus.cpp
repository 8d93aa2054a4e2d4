#include "host/drive/Menus.h"

#include <oleacc.h>

#include <algorithm>

#include "host/drive/Keyboard.h"
#include "host/drive/Player.h"
#include "host/drive/WindowClass.h"
#include "host/lisp/Error.h"
#include "host/lisp/Interpreter.h"
#include "host/services/Texts.h"

namespace {

using lisp::Call;
using lisp::Value;

// Asks the window of a popup menu for its handle. Not in every set of headers.
constexpr UINT MENU_OF_WINDOW = 0x01E1;
constexpr wchar_t MENU_CLASS[] = L"#32768";

BOOL CALLBACK takeMenu(HWND window, LPARAM found) noexcept {
    if (hasWindowClass(window, MENU_CLASS) && IsWindowVisible(window))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

// Of an item that draws itself the text stands where assistive programs look for it.
std::wstring accessibleText(ULONG_PTR data) {
    const auto* info = reinterpret_cast<const MSAAMENUINFO*>(data);
    const bool isKnown = info && info->dwMSAASignature == static_cast<DWORD>(MSAA_MENU_SIG);
    return isKnown && info->pszWText ? std::wstring(info->pszWText, info->cchWText) : std::wstring();
}

std::wstring textOfItem(HMENU menu, UINT position, const MENUITEMINFOW& item) {
    if (item.fType & MFT_OWNERDRAW) return accessibleText(item.dwItemData);
    wchar_t text[256] = {};
    GetMenuStringW(menu, position, text, ARRAYSIZE(text), MF_BYPOSITION);
    return text;
}

// Two ampersands are one; a single one marks the mnemonic.
std::wstring withoutMnemonic(const std::wstring& text) {
    std::wstring shown;
    for (size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'&' && at + 1 < text.size()) ++at;
        shown += text[at];
    }
    return shown;
}

MenuItem itemAt(HMENU menu, UINT position) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_DATA | MIIM_SUBMENU;
    GetMenuItemInfoW(menu, position, TRUE, &info);
    const std::wstring text = textOfItem(menu, position, info);
    const size_t tab = text.find(L'\t');
    MenuItem item;
    item.text = withoutMnemonic(text.substr(0, tab));
    if (tab != std::wstring::npos) item.shortcut = text.substr(tab + 1);
    item.isSeparator = info.fType & MFT_SEPARATOR;
    item.disabled = info.fState & MFS_DISABLED;
    item.checked = info.fState & MFS_CHECKED;
    item.isDefault = info.fState & MFS_DEFAULT;
    item.opensMenu = info.hSubMenu != nullptr;
    item.selected = info.fState & MFS_HILITE;
    return item;
}

[[noreturn]] void fail(const std::wstring& what) { throw lisp::Error(lispText(what)); }

// Text, shortcut, and a word for each state.
Value lookOfItem(Call& call, const MenuItem& item) {
    lisp::ListBuilder list(call.lisp);
    const auto add = [&](const std::wstring& text) { list.add(call.lisp.string(lispText(text))); };
    add(item.text);
    add(item.shortcut);
    if (item.disabled) add(L"disabled");
    if (item.checked) add(L"checked");
    if (item.isDefault) add(L"default");
    if (item.opensMenu) add(L"menu");
    return list.list();
}

GUITHREADINFO inputState() {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info;
}

// As a person goes there by the arrow keys, one at a time, and takes it by Enter.
void goTo(HMENU menu, size_t position, int keysLeft) {
    const HWND focus = GetFocus();
    if (openMenu() != menu || !focus) fail(L"the menu has closed");
    if (menuItems(menu)[position].selected) return pressKey(focus, {.virtualKey = VK_RETURN});
    if (keysLeft == 0) fail(L"the arrow keys don't lead to the menu's item");
    pressKey(focus, {.virtualKey = VK_DOWN});
    player().steps().add(nullptr, [=] { goTo(menu, position, keysLeft - 1); });
}

// (ui_menu ["text"])
Value menu(Call& call) {
    const HMENU menu = openMenu();
    if (!call.has(0)) {
        lisp::ListBuilder list(call.lisp);
        if (menu)
            for (const MenuItem& item : menuItems(menu))
                list.add(item.isSeparator ? Value::nil() : lookOfItem(call, item));
        return list.list();
    }
    if (!menu) fail(L"no menu is open");
    const std::vector<MenuItem> items = menuItems(menu);
    const std::wstring wanted = wideText(call.text(0));
    const auto found =
        std::find_if(items.begin(), items.end(), [&](const MenuItem& item) { return item.text == wanted; });
    if (found == items.end()) fail(L"the menu has no item \"" + wanted + L"\"");
    if (found->disabled) fail(L"the menu's item \"" + wanted + L"\" is disabled");
    goTo(menu, static_cast<size_t>(found - items.begin()), static_cast<int>(items.size()) + 1);
    return Value::none();
}

constexpr UiFunction FUNCTIONS[] = {{u"ui_menu", &menu, 0, 1}};

}  // namespace

std::vector<HWND> menuWindows() {
    std::vector<HWND> found;
    EnumThreadWindows(GetCurrentThreadId(), &takeMenu, reinterpret_cast<LPARAM>(&found));
    return found;
}

HMENU openMenu() {
    const std::vector<HWND> windows = menuWindows();
    if (windows.empty()) return nullptr;
    return reinterpret_cast<HMENU>(SendMessageW(windows.front(), MENU_OF_WINDOW, 0, 0));
}

bool worksMenu() { return inputState().flags & GUI_INMENUMODE; }

HWND menuOwner() { return inputState().hwndMenuOwner; }

std::vector<MenuItem> menuItems(HMENU menu) {
    std::vector<MenuItem> items;
    for (int at = 0; at < GetMenuItemCount(menu); ++at) items.push_back(itemAt(menu, static_cast<UINT>(at)));
    return items;
}

std::span<const UiFunction> menuFunctions() { return FUNCTIONS; }
