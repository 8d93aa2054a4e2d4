#include "host/frame/FrameCommands.h"

#include <algorithm>
#include <vector>

#include "host/frame/FrameViews.h"

namespace {

constexpr FrameCommand COMMANDS[] = {
    {OPEN_PROGRAM, L"&Open Program...", FCONTROL, 'O', FrameIcon::open},
    {RUN_AGAIN, L"&Run Again", 0, VK_F5, FrameIcon::run},
    {LOAD_PLUGIN, L"&Load Plug-in...", FCONTROL, 'L', FrameIcon::plugin},
    // The system's own key, which needs no help.
    {EXIT, L"E&xit", FALT, VK_F4},
    {FIT, L"&Fit", FCONTROL, '0', FrameIcon::fit},
    {ZOOM_IN, L"Zoom I&n", FCONTROL, VK_UP, FrameIcon::zoomIn},
    {ZOOM_OUT, L"Zoom &Out", FCONTROL, VK_DOWN, FrameIcon::zoomOut},
    {FIRST_VIEW + VIEW_TOP, L"&Top", FCONTROL, '1', FrameIcon::top},
    {FIRST_VIEW + VIEW_FRONT, L"F&ront", FCONTROL, '2', FrameIcon::front},
    {FIRST_VIEW + VIEW_RIGHT, L"R&ight", FCONTROL, '3', FrameIcon::right},
    {FIRST_VIEW + VIEW_ISOMETRIC, L"Iso&metric", FCONTROL, '4', FrameIcon::isometric},
    {FIRST_STYLE + STYLE_WIREFRAME_2D, L"&2D Wireframe"},
    {FIRST_STYLE + STYLE_WIREFRAME_3D, L"&3D Wireframe"},
    {FIRST_STYLE + STYLE_HIDDEN, L"&Hidden Lines"},
    {FIRST_STYLE + STYLE_SHADED, L"&Shaded"},
    {FIRST_PAGE, L"&First Steps", 0, VK_F1, FrameIcon::help},
    {ABOUT, L"&About WexHost..."},
};

std::wstring keyName(WORD key) {
    if (key >= VK_F1 && key <= VK_F12) return L"F" + std::to_wstring(key - VK_F1 + 1);
    if (key == VK_UP) return L"Up";
    if (key == VK_DOWN) return L"Down";
    return std::wstring(1, static_cast<wchar_t>(key));
}

// "Ctrl+O", or nothing.
std::wstring shortcutText(const FrameCommand& command) {
    if (!command.key) return {};
    std::wstring text;
    if (command.modifiers & FCONTROL) text += L"Ctrl+";
    if (command.modifiers & FALT) text += L"Alt+";
    return text + keyName(command.key);
}

// The module that this code stands in, which isn't the program's.
HMODULE ownModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&ownModule), &module);
    return module;
}

}  // namespace

const FrameCommand& frameCommand(UINT id) {
    return *std::find_if(std::begin(COMMANDS), std::end(COMMANDS),
                         [=](const FrameCommand& command) { return command.id == id; });
}

std::wstring menuText(const FrameCommand& command) {
    const std::wstring shortcut = shortcutText(command);
    return shortcut.empty() ? command.text : command.text + (L"\t" + shortcut);
}

std::wstring nameText(const FrameCommand& command) {
    std::wstring text = command.text;
    std::erase(text, L'&');
    std::erase(text, L'.');
    return text;
}

std::wstring tipText(const FrameCommand& command) {
    const std::wstring text = nameText(command);
    const std::wstring shortcut = shortcutText(command);
    return shortcut.empty() ? text : text + L" (" + shortcut + L")";
}

HACCEL createAccelerators() {
    std::vector<ACCEL> keys;
    for (const FrameCommand& command : COMMANDS)
        if (command.key && !(command.modifiers & FALT))
            keys.push_back({static_cast<BYTE>(command.modifiers | FVIRTKEY), command.key,
                            static_cast<WORD>(command.id)});
    return CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
}

UniqueIcon frameIcon(FrameIcon icon, int side) {
    if (icon == FrameIcon::none) return nullptr;
    const auto name = MAKEINTRESOURCEW(static_cast<UINT>(icon));
    return UniqueIcon(
        static_cast<HICON>(LoadImageW(ownModule(), name, IMAGE_ICON, side, side, LR_DEFAULTCOLOR)));
}
