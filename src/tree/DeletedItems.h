// What Lisp deletes from a tree while the control is at work.
//
// The platform's tree goes on with the items of an event when its action returns, and with those above and
// beside them, whether they still exist or not. So an action's deletions wait until the control has done with
// the message; for Lisp the items are gone at once.
#pragma once

#include <unordered_set>

#include "src/platform/mfc/CWnd.h"

class DeletedItems {
  public:
    bool none() const { return !m_all && m_items.empty(); }
    // Whether the item goes, by itself or with one above it.
    bool has(const CWnd& tree, HTREEITEM item) const;

    void add(HTREEITEM item) { m_items.insert(item); }
    // All that there are.
    void addAll();
    // The item was made: it stays when all others go.
    void made(HTREEITEM item);

    // Deletes them for good.
    void bury(const CWnd& tree);

  private:
    bool m_all = false;
    std::unordered_set<HTREEITEM> m_items;
    // Made after all others were deleted.
    std::unordered_set<HTREEITEM> m_younger;
};
