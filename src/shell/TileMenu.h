// The context menu of a tile, of texts and icons of the resource module.
//
//     TileMenu menu;
//     menu.add(COPY, MenuTextId::copy, MenuIcon::copy, canCopy());
//     switch (menu.choose(*this, l, rectOfFocusedItem)) …      // in WM_CONTEXTMENU
#pragma once

#include "src/platform/buttons/BCMenu.h"
#include "src/platform/mfc/CWnd.h"

// Numbers of texts of the resource module.
enum class MenuTextId : UINT {
    copy = 321,
    copyWithTitles,
    selectAll,
    fitColumns,
    cut,
    copyCells,
    paste,
    undo,
    redo,
    expandAll,
    collapseAll,
    print,
    savePdf,
    fitDrawing,
    style,
    view,
    wireframe2d,
    wireframe3d,
    hidden,
    shaded,
    top,
    front,
    right,
    isometric,
    selectCells,
};

// Numbers of icons of the resource module.
enum class MenuIcon : UINT {
    none = 0,
    copy = 301,
    cut,
    paste,
    undo,
    redo,
    print,
    save,
    fit,
    expand,
    collapse,
};

class TileMenu {
  public:
    // `command` isn't 0.
    void add(UINT command, MenuTextId text, MenuIcon icon = MenuIcon::none, bool enabled = true);
    void addSeparator() { m_menu.addSeparator(); }
    // A menu below this one, of items of which one may be the chosen one.
    BCMenu& addMenu(MenuTextId text);
    static void addChoice(BCMenu& menu, UINT command, MenuTextId text, bool chosen);

    // Shows the menu where WM_CONTEXTMENU with that `l` asks for it: at the pointer, or, asked for by the
    // keyboard, below `focused` (in the tile's client pixels, as far as it is in view). 0 where nothing was
    // chosen, and where the tile is gone.
    UINT choose(const CWnd& tile, LPARAM l, const RECT& focused);

  private:
    BCMenu m_menu;
};

// Whether WM_CONTEXTMENU with that `l` comes from the keyboard.
inline bool isFromKeyboard(LPARAM l) { return l == -1; }
