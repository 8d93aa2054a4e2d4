// A person's keyboard, by posted messages: they are handled when the dialog's loop runs again.
#pragma once

#include <windows.h>

#include <string_view>

#include "host/drive/KeyNames.h"

// Types the characters into `window`.
void typeText(HWND window, std::wstring_view text);

// Presses and releases a key in `window`. The keys held meanwhile stay down until releaseHeldKeys.
void pressKey(HWND window, const KeyStroke& stroke);

// Lets go of Shift, Ctrl and Alt; to be called when the loop has handled the strokes.
void releaseHeldKeys();
