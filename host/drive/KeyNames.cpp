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
    {L"enter", 0x0D},
    {L"return", 0x0D},
    {L"esc", 0x1B},
    {L"escape", 0x1B},
    {L"tab", 0x09},
    {L"space", 0x20},
    {L"backspace", 0x08},
    {L"back", 0x08},
    {L"delete", 0x2E},
    {L"del", 0x2E},
    {L"insert", 0x2D},
    {L"ins", 0x2D},
    {L"home", 0x24},
    {L"end", 0x23},
    {L"pageup", 0x21},
    {L"pagedown", 0x22},
    {L"left", 0x25},
    {L"up", 0x26},
    {L"right", 0x27},
    {L"down", 0x28},
    {L"shift", 0x10},
    {L"ctrl", 0x11},
    {L"alt", 0x12},
    {L"plus", 0x6B},
    {L"minus", 0x6D},
    {L"star", 0x6A},
    {L"apps", 0x5D},
    {L"num0", 0x60},
    {L"num1", 0x61},
    {L"num2", 0x62},
    {L"num3", 0x63},
    {L"num4", 0x64},
    {L"num5", 0x65},
    {L"num6", 0x66},
    {L"num7", 0x67},
    {L"num8", 0x68},
    {L"num9", 0x69},
    {L"point", 0x6E},
    {L"slash", 0x6F},
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

std::optional<int> keyNamed(const std::wstring& name) {
    if (name.size() == 1 && ((name[0] >= L'a' && name[0] <= L'z') || (name[0] >= L'0' && name[0] <= L'9'))) {
        // Codes of letters are those of their capitals.
        return name[0] >= L'a' ? name[0] - L'a' + L'A' : name[0];
    }
    if (name.size() >= 2 && name.size() <= 3 && name[0] == L'f') {
        const int number = decimalNumber(name.substr(1));
        if (number >= 1 && number <= FUNCTION_KEYS && name == L"f" + std::to_wstring(number)) {
            return FIRST_FUNCTION_KEY + number - 1;
        }
    }
    for (const NamedKey& key : KEYS) {
        if (key.name == name) return key.virtualKey;
    }
    return std::nullopt;
}

// In lower case; empty for none. Of several names the first one of the table.
std::wstring nameOf(int key) {
    if ((key >= L'A' && key <= L'Z') || (key >= L'0' && key <= L'9'))
        return std::wstring(1, static_cast<wchar_t>(key >= L'A' ? key - L'A' + L'a' : key));
    const int function = key - FIRST_FUNCTION_KEY + 1;
    if (function >= 1 && function <= FUNCTION_KEYS) return L"f" + std::to_wstring(function);
    for (const NamedKey& known : KEYS)
        if (known.virtualKey == key) return std::wstring(known.name);
    return {};
}

}  // namespace

std::wstring keyStrokeName(const KeyStroke& stroke) {
    const std::wstring key = nameOf(stroke.virtualKey);
    if (key.empty()) return {};
    std::wstring name = stroke.shift ? L"SHIFT+" : L"";
    if (stroke.control) name += L"CTRL+";
    if (stroke.alt) name += L"ALT+";
    for (const wchar_t c : key) name += c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
    return name;
}

std::optional<KeyStroke> parseKeyStroke(std::wstring_view text) {
    std::wstring rest = toLower(text);
    KeyStroke stroke{};
    for (size_t plus; (plus = rest.find(L'+')) != std::wstring::npos; rest.erase(0, plus + 1)) {
        const std::wstring modifier = rest.substr(0, plus);
        bool* held = modifier == L"shift"                            ? &stroke.shift
                     : modifier == L"ctrl" || modifier == L"control" ? &stroke.control
                     : modifier == L"alt"                            ? &stroke.alt
                                                                     : nullptr;
        if (!held || *held) return std::nullopt;
        *held = true;
    }
    const std::optional<int> key = keyNamed(rest);
    if (!key) return std::nullopt;
    stroke.virtualKey = *key;
    return stroke;
}

std::optional<KeyStroke> parseHeldKeys(std::wstring_view text) {
    std::optional<KeyStroke> stroke = parseKeyStroke(std::wstring(text) + L"+a");
    if (stroke) stroke->virtualKey = 0;
    return stroke;
}
