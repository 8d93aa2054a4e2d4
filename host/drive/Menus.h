// The popup menus of this thread, as a person sees and works them.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

#include "host/drive/UiFunction.h"

struct MenuItem {
    std::wstring text;      // without the mark of its mnemonic
    std::wstring shortcut;  // behind the text; empty for none
    bool isSeparator = false;
    bool disabled = false;
    bool checked = false;
    bool isDefault = false;
    bool opensMenu = false;
    bool selected = false;
};

// The windows of the menus that show, the one that was opened last first.
std::vector<HWND> menuWindows();
// The menu that was opened last and still shows; null for none.
HMENU openMenu();
// Whether a menu's loop runs: that of a menu bar has no menu open at first.
bool worksMenu();
// The window whose menu that is; null without one.
HWND menuOwner();
// Texts are read as an assistive program reads them, of items that draw themselves too.
std::vector<MenuItem> menuItems(HMENU menu);

// The functions for menus, for UiFunctions.cpp.
std::span<const UiFunction> menuFunctions();
