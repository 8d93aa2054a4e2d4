#include "host/drive/KeyNames.h"

#include <string>

#include "src/platform/base/Text.h"

namespace {

struct NamedKey {
    std::wstring_view name;
    int virtualKey;
};

// The codes are those of the system's WinUser.h.
constexpr NamedKey KEYS[] = {
    {L"ENTER", 0x0D},
    {L"RETURN", 0x0D},
    {L"ESC", 0x1B},
    {L"ESCAPE", 0x1B},
    {L"TAB", 0x09},
    {L"SPACE", 0x20},
    {L"BACKSPACE", 0x08},
    {L"BACK", 0x08},
    {L"DELETE", 0x2E},
    {L"DEL", 0x2E},
    {L"INSERT", 0x2D},
    {L"INS", 0x2D},
    {L"HOME", 0x24},
    {L"END", 0x23},
    {L"PAGEUP", 0x21},
    {L"PAGEDOWN", 0x22},
    {L"LEFT", 0x25},
    {L"UP", 0x26},
    {L"RIGHT", 0x27},
    {L"DOWN", 0x28},
    {L"SHIFT", 0x10},
    {L"CTRL", 0x11},
    {L"ALT", 0x12},
    {L"PLUS", 0x6B},
    {L"MINUS", 0x6D},
    {L"STAR", 0x6A},
    {L"APPS", 0x5D},
    {L"NUM0", 0x60},
    {L"NUM1", 0x61},
    {L"NUM2", 0x62},
    {L"NUM3", 0x63},
    {L"NUM4", 0x64},
    {L"NUM5", 0x65},
    {L"NUM6", 0x66},
    {L"NUM7", 0x67},
    {L"NUM8", 0x68},
    {L"NUM9", 0x69},
    {L"POINT", 0x6E},
    {L"SLASH", 0x6F},
    // Where keyboards of the United States have these characters.
    {L";", 0xBA},
    {L"=", 0xBB},
    {L",", 0xBC},
    {L"-", 0xBD},
    {L".", 0xBE},
    {L"/", 0xBF},
    {L"`", 0xC0},
    {L"[", 0xDB},
    {L"\\", 0xDC},
    {L"]", 0xDD},
    {L"'", 0xDE},
};

constexpr int FIRST_FUNCTION_KEY = 0x70;
constexpr int FUNCTION_KEYS = 12;

// Empty for none. Of several names the first one of the table.
std::wstring nameOf(int key) {
    // Codes of letters and digits are their characters'.
    if ((key >= L'A' && key <= L'Z') || (key >= L'0' && key <= L'9'))
        return std::wstring(1, static_cast<wchar_t>(key));
    const int function = key - FIRST_FUNCTION_KEY + 1;
    if (function >= 1 && function <= FUNCTION_KEYS) return L"F" + std::to_wstring(function);
    for (const NamedKey& known : KEYS)
        if (known.virtualKey == key) return std::wstring(known.name);
    return {};
}

std::optional<int> keyNamed(std::wstring_view name) {
    for (const NamedKey& key : KEYS)
        if (equalIgnoringCase(key.name, name)) return key.virtualKey;
    if (name.empty()) return std::nullopt;
    for (int key = L'0'; key < FIRST_FUNCTION_KEY + FUNCTION_KEYS; ++key)
        if (equalIgnoringCase(nameOf(key), name)) return key;
    return std::nullopt;
}

}  // namespace

std::wstring keyStrokeName(const KeyStroke& stroke) {
    const std::wstring key = nameOf(stroke.virtualKey);
    if (key.empty()) return {};
    return std::wstring(stroke.shift ? L"SHIFT+" : L"") + (stroke.control ? L"CTRL+" : L"") +
           (stroke.alt ? L"ALT+" : L"") + key;
}

std::optional<KeyStroke> parseKeyStroke(std::wstring_view text) {
    KeyStroke stroke{};
    for (size_t plus; (plus = text.find(L'+')) != std::wstring_view::npos; text.remove_prefix(plus + 1)) {
        const std::wstring modifier = toLower(text.substr(0, plus));
        bool* held = modifier == L"shift"                            ? &stroke.shift
                     : modifier == L"ctrl" || modifier == L"control" ? &stroke.control
                     : modifier == L"alt"                            ? &stroke.alt
                                                                     : nullptr;
        if (!held || *held) return std::nullopt;
        *held = true;
    }
    const std::optional<int> key = keyNamed(text);
    if (!key) return std::nullopt;
    stroke.virtualKey = *key;
    return stroke;
}

std::optional<KeyStroke> parseHeldKeys(std::wstring_view text) {
    std::optional<KeyStroke> stroke = parseKeyStroke(std::wstring(text) + L"+a");
    if (stroke) stroke->virtualKey = 0;
    return stroke;
}
