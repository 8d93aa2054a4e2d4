// How the functions of sessions name what a person has worked.
#pragma once

#include <windows.h>

#include <string>

#include "host/drive/Items.h"

// As keys and names of dialogs are written.
std::wstring upperCase(std::wstring text);

struct NamedTile {
    HWND window = nullptr;  // of the tile, of which the one that was worked may be a part
    std::wstring name;      // as Lisp reads it; empty for what no name leads to

    explicit operator bool() const { return !name.empty(); }
};

// The tile that a window within the dialog is, or is a part of, as the list of a combo box or the head of a
// list control is.
NamedTile tileOf(HWND window, HWND dialog);

// An entry by its text where no other has it, otherwise by its number; in a tree by its path.
std::wstring itemName(const Items& items, int index);
