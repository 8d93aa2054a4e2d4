// A person drags the border of a dialog.
#pragma once

#include <windows.h>

#include <string_view>

// Where a dialog is taken hold of: how far across and down its window, in halves.
struct Border {
    std::wstring_view name;
    int right;
    int down;
};

// "left", "top", "right", "bottom", or "grip" for the lower right corner of the client area, in any case;
// null for another name.
const Border* borderNamed(std::wstring_view name);

// Drags the border by that many pixels. Done when it returns. False where the dialog can't be sized there.
bool dragBorder(HWND dialog, const Border& border, SIZE by);
