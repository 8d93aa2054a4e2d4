// What may be typed into an edit box that takes distances or angles. Portable.
#pragma once

#include <optional>
#include <string_view>

enum class EditMode { plain = 0, numeric = 1, angular = 2 };

// The characters of a notation, by its unit code of 1 to 5; nothing for another code.
std::optional<std::wstring_view> validChars(EditMode mode, int unit);

enum class TypedChar {
    pass,     // to the control
    refuse,   // with a beep
    restore,  // the last good text comes back, and the character goes no further
};

// What a typed character does. `valid` empty lets all through. Control characters are no exception: a
// filtered box refuses Enter and the keyboard shortcuts; only backspace and Esc are free.
TypedChar filterChar(wchar_t typed, std::wstring_view valid);
