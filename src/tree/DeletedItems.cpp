#include "src/tree/DeletedItems.h"

#include <utility>

#include "src/platform/mfc/RedrawHold.h"
#include "src/tree/TreeItems.h"

bool DeletedItems::has(const CWnd& tree, HTREEITEM item) const {
    if (m_all && item && !m_younger.count(item)) return true;
    if (m_items.empty()) return false;
    for (; item; item = nextTreeItem(tree, TVGN_PARENT, item))
        if (m_items.count(item)) return true;
    return false;
}

void DeletedItems::addAll() {
    m_all = true;
    m_items.clear();
    m_younger.clear();
}

void DeletedItems::made(HTREEITEM item) {
    if (m_all) m_younger.insert(item);
}

void DeletedItems::bury(const CWnd& tree) {
    const DeletedItems going = std::exchange(*this, {});
    holdRedraw(tree.m_hWnd);
    // Else each deletion would hand the selection to an item that goes next.
    if (going.has(tree, nextTreeItem(tree, TVGN_CARET))) tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, 0);
    for (const HTREEITEM item : going.m_items) deleteTreeItem(tree, item);
    if (!going.m_all) return;
    if (going.m_younger.empty()) {
        deleteTreeItem(tree, TVI_ROOT);
        return;
    }
    for (HTREEITEM next, item = nextTreeItem(tree, TVGN_ROOT); item; item = next) {
        next = nextTreeItem(tree, TVGN_NEXT, item);
        if (!going.m_younger.count(item)) deleteTreeItem(tree, item);
    }
}
