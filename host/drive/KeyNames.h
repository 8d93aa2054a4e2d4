// The names of keys, as ui_key takes them. Portable.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// A key with the keys that are held down meanwhile.
struct KeyStroke {
    int virtualKey;  // the system's virtual key code
    bool shift = false;
    bool control = false;
    bool alt = false;

    bool operator==(const KeyStroke&) const = default;
};

// Reads `ENTER`, `Ctrl+A`, `shift+tab`, `Alt+F4`: a key's name, behind the names Shift, Ctrl and Alt in any
// order, joined by `+`; letter case does not count. A letter or a digit names itself. These three may also
// stand alone, for the keys themselves. Nothing for other text.
std::optional<KeyStroke> parseKeyStroke(std::wstring_view text);

// The name that parseKeyStroke reads, in capitals; empty for a key that has none.
std::wstring keyStrokeName(const KeyStroke& stroke);

// Reads `Shift`, `Ctrl+Shift` and the like, with which the mouse is used; the virtual key is 0.
std::optional<KeyStroke> parseHeldKeys(std::wstring_view text);
