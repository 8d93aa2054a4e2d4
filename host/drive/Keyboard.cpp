#include "host/drive/Keyboard.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "host/drive/GridWindow.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Player.h"
#include "host/drive/RealInput.h"
#include "host/drive/WindowClass.h"

namespace {

constexpr BYTE KEY_DOWN = 0x80;

// Sent for F1 by the system's input queue; the default window procedure makes WM_HELP of it. Not in the
// headers.
constexpr UINT WM_KEYF1 = 0x004D;

constexpr LPARAM ALT_HELD = LPARAM(1) << 29;
constexpr LPARAM WAS_DOWN = LPARAM(1) << 30;
constexpr LPARAM RELEASED = LPARAM(1) << 31;

// Posted keys leave the thread's keyboard state alone, where programs look for Shift, Ctrl and Alt.
void setKeys(const KeyStroke& stroke, BYTE state) {
    if (usesRealInput()) {
        if (stroke.shift) sendKey(VK_SHIFT, state != 0);
        if (stroke.control) sendKey(VK_CONTROL, state != 0);
        if (stroke.alt) sendKey(VK_MENU, state != 0);
        return;
    }
    BYTE keys[256];
    GetKeyboardState(keys);
    const auto set = [&](int both, int left) { keys[both] = keys[left] = state; };
    if (stroke.shift) set(VK_SHIFT, VK_LSHIFT);
    if (stroke.control) set(VK_CONTROL, VK_LCONTROL);
    if (stroke.alt) set(VK_MENU, VK_LMENU);
    SetKeyboardState(keys);
}

// With Ctrl held these keys scroll a tree. Wine's looks for Ctrl at the keyboard itself, where a posted key
// doesn't show.
struct ScrollKey {
    int key;
    UINT message;
    WORD way;
};
constexpr ScrollKey SCROLL_KEYS[] = {
    {VK_UP, WM_VSCROLL, SB_LINEUP},     {VK_DOWN, WM_VSCROLL, SB_LINEDOWN},
    {VK_PRIOR, WM_VSCROLL, SB_PAGEUP},  {VK_NEXT, WM_VSCROLL, SB_PAGEDOWN},
    {VK_HOME, WM_VSCROLL, SB_TOP},      {VK_END, WM_VSCROLL, SB_BOTTOM},
    {VK_LEFT, WM_HSCROLL, SB_LINELEFT}, {VK_RIGHT, WM_HSCROLL, SB_LINERIGHT}};

// Whether the key does; then it has done so.
bool scrollsTree(HWND window, const KeyStroke& stroke) {
    if (!stroke.control || stroke.alt || !hasWindowClass(window, WC_TREEVIEWW)) return false;
    const auto found = std::find_if(std::begin(SCROLL_KEYS), std::end(SCROLL_KEYS),
                                    [&](const ScrollKey& at) { return at.key == stroke.virtualKey; });
    if (found == std::end(SCROLL_KEYS)) return false;
    PostMessageW(window, found->message, found->way, 0);
    return true;
}

}  // namespace

// A new line may run an action, and each character where what is typed isn't only text; its dialogs and boxes
// are done with before a person goes on typing.
void typeText(HWND window, std::wstring_view text) {
    const bool isText = hasWindowClass(window, WC_EDITW) && !gridOf(GetParent(window));
    const size_t lineEnd = isText ? text.find_first_of(L"\r\n") : 0;
    const std::wstring_view line = text.substr(0, lineEnd == text.npos ? lineEnd : lineEnd + 1);
    const bool isReal = usesRealInput() && line.find_first_of(L"\r\x1B") == line.npos;
    for (const wchar_t c : line) {
        if (isReal)
            sendCharacter(c == L'\n' ? L'\r' : c);
        else
            PostMessageW(window, WM_CHAR, c == L'\n' ? L'\r' : c, 1);
    }
    if (line.size() >= text.size()) return;
    player().steps().add(dialogOf(window), [window, rest = std::wstring(text.substr(line.size()))] {
        const HWND focus = GetFocus();
        typeText(focus ? focus : window, rest);
    });
}

void pressKey(HWND window, const KeyStroke& stroke) {
    const auto key = static_cast<WPARAM>(stroke.virtualKey);
    const LPARAM scan = LPARAM(MapVirtualKeyW(stroke.virtualKey, MAPVK_VK_TO_VSC)) << 16 | 1;
    const bool withAlt = stroke.alt && !stroke.control;
    const bool system = withAlt || stroke.virtualKey == VK_F10;
    const LPARAM alt = withAlt ? ALT_HELD : 0;
    setKeys(stroke, KEY_DOWN);
    if (usesRealInput()) {
        sendKey(stroke.virtualKey, true);
        player().steps().add(nullptr, [=] { sendKey(stroke.virtualKey, false); });
        return player().steps().add(nullptr, [=] { setKeys(stroke, 0); });
    }
    if (!scrollsTree(window, stroke))
        PostMessageW(window, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key, scan | alt);
    if (stroke.virtualKey == VK_F1 && !stroke.alt) PostMessageW(window, WM_KEYF1, 0, 0);
    player().steps().add(nullptr, [=] {
        const HWND focus = GetFocus();
        if (focus)
            PostMessageW(focus, system ? WM_SYSKEYUP : WM_KEYUP, key, scan | alt | WAS_DOWN | RELEASED);
    });
    player().steps().add(nullptr, [=] { setKeys(stroke, 0); });
}

void holdKeys(const KeyStroke& stroke) {
    setKeys(stroke, KEY_DOWN);
    player().steps().add(nullptr, [=] { setKeys(stroke, 0); });
}
