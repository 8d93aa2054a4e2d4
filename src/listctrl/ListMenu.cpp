// The context menu of a list control.
#include "src/listctrl/ListCells.h"
#include "src/listctrl/ListClipboard.h"
#include "src/listctrl/ListColumns.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/shell/TileMenu.h"

namespace {

enum Command : UINT { COPY = 1, COPY_WITH_TITLES, SELECT_ALL, FIT_COLUMNS };

}  // namespace

RECT WexListCtrl::focusedRowRect() const {
    RECT rect{};
    const LRESULT row = SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
    rect.left = LVIR_LABEL;
    if (row < 0 || !SendMessage(LVM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect))) return {};
    return rect;
}

// By the keyboard, and by the right button above the heads: on the rows that button tells Lisp of them.
LRESULT WexListCtrl::onContextMenu(WPARAM w, LPARAM l) {
    if (!isFromKeyboard(l) && reinterpret_cast<HWND>(w) != headerOf(*this)) return 0;
    const bool hasSelection = firstSelectedRow(*this) >= 0 && columnCount(*this) > 0;
    const bool selectsSeveral = !(GetStyle() & LVS_SINGLESEL) && rowCount(*this) > 0;
    // Of a list that has no items all of a million would be measured.
    const bool fits = columnCount(*this) > 0 && !(GetStyle() & LVS_OWNERDATA);
    TileMenu menu;
    menu.add(COPY, MenuTextId::copy, MenuIcon::copy, hasSelection);
    menu.add(COPY_WITH_TITLES, MenuTextId::copyWithTitles, MenuIcon::none, hasSelection);
    menu.addSeparator();
    menu.add(SELECT_ALL, MenuTextId::selectAll, MenuIcon::none, selectsSeveral);
    menu.add(FIT_COLUMNS, MenuTextId::fitColumns, MenuIcon::fit, fits);
    switch (menu.choose(*this, l, focusedRowRect())) {
        case COPY:
            copySelectedRows(*this, false);
            break;
        case COPY_WITH_TITLES:
            copySelectedRows(*this);
            break;
        case SELECT_ALL:
            selectAllRows(*this);
            break;
        case FIT_COLUMNS:
            fitColumns(*this);
            break;
    }
    return 0;
}
