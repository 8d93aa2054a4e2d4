// The context menu of a tree.
#include <algorithm>
#include <cstring>

#include "src/shell/TileMenu.h"
#include "src/tree/TreeItems.h"
#include "src/tree/WexTree.h"

namespace {

enum Command : UINT { EXPAND_ALL = 1, COLLAPSE_ALL };

}  // namespace

// All items that have some below them, each before those below it.
std::vector<HTREEITEM> WexTree::branches() const {
    std::vector<HTREEITEM> found, ahead;
    const auto addSiblings = [&](HTREEITEM first) {
        for (HTREEITEM at = first; at; at = nextTreeItem(*this, TVGN_NEXT, at)) ahead.push_back(at);
    };
    addSiblings(nextTreeItem(*this, TVGN_ROOT));
    while (!ahead.empty()) {
        const HTREEITEM item = ahead.back();
        ahead.pop_back();
        const HTREEITEM child = nextTreeItem(*this, TVGN_CHILD, item);
        if (!child || hasDeleted(item)) continue;
        found.push_back(item);
        addSiblings(child);
    }
    return found;
}

// As if the person had clicked the button of each. An action that deletes items leaves them to the control
// until the message has ended, so the handles stay good.
void WexTree::openBranches(bool open) {
    std::vector<HTREEITEM> items = branches();
    if (!open) std::reverse(items.begin(), items.end());
    for (const HTREEITEM item : items) {
        if (!isLive()) return;
        const auto shown = treeItem(*this, item);
        if (!shown || shown->isOpen == open || hasDeleted(item)) continue;
        // Of an item that was open before, the control tells only when a person opens or closes it.
        TVITEMW fresh{};
        fresh.mask = TVIF_HANDLE | TVIF_STATE;
        fresh.hItem = item;
        fresh.stateMask = TVIS_EXPANDEDONCE;
        SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&fresh));
        SendMessage(TVM_EXPAND, open ? TVE_EXPAND : TVE_COLLAPSE, reinterpret_cast<LPARAM>(item));
    }
}

RECT WexTree::selectedItemRect() const {
    RECT rect{};
    const HTREEITEM item = nextTreeItem(*this, TVGN_CARET);
    // The message takes the item in the place of its answer.
    std::memcpy(&rect, &item, sizeof item);
    if (!item || !SendMessage(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect))) return {};
    return rect;
}

// By the keyboard alone: the right button tells Lisp of the item.
LRESULT WexTree::onContextMenu(WPARAM, LPARAM l) {
    if (!isFromKeyboard(l)) return 0;
    bool anyOpen = false, anyClosed = false;
    for (const HTREEITEM item : branches()) {
        const auto shown = treeItem(*this, item);
        (shown && shown->isOpen ? anyOpen : anyClosed) = true;
    }
    TileMenu menu;
    menu.add(EXPAND_ALL, MenuTextId::expandAll, MenuIcon::expand, anyClosed);
    menu.add(COLLAPSE_ALL, MenuTextId::collapseAll, MenuIcon::collapse, anyOpen);
    if (const UINT command = menu.choose(*this, l, selectedItemRect())) openBranches(command == EXPAND_ALL);
    return 0;
}
