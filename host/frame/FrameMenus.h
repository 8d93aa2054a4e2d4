// What the menus of the main frame hold, each time they open.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/frame/FrameCommands.h"
#include "host/frame/NameGroups.h"
#include "src/platform/buttons/BCMenu.h"

// Puts commands into a menu, with icons for the scale of a window.
class FrameMenu {
  public:
    FrameMenu(BCMenu& menu, HWND window);

    // `states` of BCMenu.
    void add(UINT command, unsigned states = BCMenu::NORMAL);
    void addSeparator() { m_menu.addSeparator(); }
    // The programs, newest first, with a digit as mnemonic; disabled where there are none.
    void addPrograms(const std::vector<std::wstring>& programs);
    void addNames(const std::vector<NameGroup>& groups);
    // The views and the styles; `view` and `style` are shown as chosen. Disabled where nothing is to be seen.
    void addViews(std::optional<int> view, int style, bool enabled);
    void addPages();

  private:
    BCMenu& m_menu;
    int m_iconSide;
};
