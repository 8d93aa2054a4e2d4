// The context menu of a grid.
#include "src/grid/WexGrid.h"
#include "src/shell/TileMenu.h"

// By the keyboard and by the right button, which leaves the selection alone: the commands are about it.
LRESULT WexGrid::onContextMenu(WPARAM w, LPARAM l) {
    // That of an open cell's editor is the platform's.
    if (reinterpret_cast<HWND>(w) != m_hWnd) return 0;
    if (!holdsFocus()) SetFocus();
    if (!isLive()) return 0;
    TileMenu menu;
    const auto add = [&](Command command, MenuTextId text, MenuIcon icon) {
        menu.add(static_cast<UINT>(command), text, icon, canDo(command));
    };
    add(Command::undo, MenuTextId::undo, MenuIcon::undo);
    add(Command::redo, MenuTextId::redo, MenuIcon::redo);
    menu.addSeparator();
    add(Command::cut, MenuTextId::cut, MenuIcon::cut);
    add(Command::copy, MenuTextId::copyCells, MenuIcon::copy);
    add(Command::paste, MenuTextId::paste, MenuIcon::paste);
    menu.addSeparator();
    add(Command::selectAll, MenuTextId::selectCells, MenuIcon::none);
    add(Command::fitColumns, MenuTextId::fitColumns, MenuIcon::fit);
    if (const UINT command = menu.choose(*this, l, currentCellRect())) doCommand(Command(command));
    return 0;
}
