// Where the parts of a menu item stand, and which item a key is for. Portable.
#pragma once

#include <span>
#include <string_view>

// A text of a menu: before the first tab what the item is called, with "&" before its mnemonic, and behind it
// the shortcut.
struct MenuText {
    std::wstring_view label;
    std::wstring_view shortcut;
};
MenuText splitMenuText(std::wstring_view text);

// In device pixels; the two widths are those of the widest texts of the menu.
struct MenuMetrics {
    int dpi = 96;
    int iconSide = 16;
    int lineHeight = 13;
    int labelWidth = 0;
    int shortcutWidth = 0;  // 0 where no item has a shortcut
};

struct MenuBox {
    int left = 0, top = 0, right = 0, bottom = 0;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
};

struct MenuItemParts {
    MenuBox gutter;    // behind the mark, from top to bottom
    MenuBox mark;      // a square for the icon or the mark
    MenuBox label;     // from top to bottom
    MenuBox shortcut;  // the same; its text ends at the right side
    MenuBox arrow;     // a square for the arrow of a sub-menu
};

int menuItemHeight(const MenuMetrics& metrics);
int menuSeparatorHeight(const MenuMetrics& metrics);
int menuItemWidth(const MenuMetrics& metrics);
MenuItemParts placeMenuItem(const MenuBox& item, const MenuMetrics& metrics);

// What a letter does in a menu: it chooses the only item that has it, and of several it leads to the next one
// behind the current one, which is -1 for none. `mnemonics` has that of each item, in lower case, or 0.
struct MenuKeyAnswer {
    int item = -1;  // -1: no item has it
    bool chooses = false;
    bool operator==(const MenuKeyAnswer&) const = default;
};
MenuKeyAnswer answerMenuKey(std::span<const wchar_t> mnemonics, wchar_t key, int current);
