// A person's keyboard, by posted messages: they are handled when the dialog's loop runs again.
#pragma once

#include <windows.h>

#include <string_view>

#include "host/drive/KeyNames.h"

// Types the characters into `window`.
void typeText(HWND window, std::wstring_view text);

// Presses a key in `window`, and lets go of it in the next idle moment, where the focus is then: so the
// release comes behind the character that the press makes. Meanwhile the keys that it is pressed with are
// held.
void pressKey(HWND window, const KeyStroke& stroke);

// Holds the stroke's Shift, Ctrl and Alt until the next idle moment; its own key isn't pressed.
void holdKeys(const KeyStroke& stroke);
