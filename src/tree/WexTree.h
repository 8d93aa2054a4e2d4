// A tree, and what happens in it as it is told to Lisp.
#pragma once

#include <memory>
#include <vector>

#include "src/dialog/EventBridge.h"
#include "src/dialog/TileControl.h"
#include "src/platform/mfc/CImageList.h"
#include "src/platform/mfc/CTreeCtrl.h"
#include "src/tree/CTreeDataItem.h"
#include "src/tree/DeletedItems.h"

class WexTree : public CTreeCtrl, public TileControl {
    DECLARE_DYNAMIC(WexTree)

  public:
    // The wrapper of a tree tile; null for any other window. Asked for each item that Lisp makes.
    static WexTree* of(CWnd* wnd) {
        return wnd && wnd->IsKindOf(RUNTIME_CLASS(WexTree)) ? static_cast<WexTree*>(wnd) : nullptr;
    }
    static const WexTree* of(const CWnd* wnd) { return of(const_cast<CWnd*>(wnd)); }

    CWnd& wnd() override { return *this; }

    // --- records of items. The tree's; they go with its window, not with their items.

    // A record for an item that gets it as its parameter.
    CTreeDataItem& addRecord();
    // The record that an item's parameter points to; null for none.
    CTreeDataItem* recordOf(LPARAM parameter) const;

    // Shows the items' images from that list; the one before goes.
    void setImages(CImageList images);

    // --- what Lisp sees of the items

    // Deletes the item with its children, all items for null and TVI_ROOT: at once, or when the control has
    // done with the message that it is at work on. False for an item that the control doesn't know.
    bool deleteItem(HTREEITEM item);
    // Whether the item is deleted, though the control may still have it.
    bool hasDeleted(HTREEITEM item) const { return m_deleted.has(*this, item); }
    void itemMade(HTREEITEM item) { m_deleted.made(item); }

  protected:
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override;
    const MessageMap& messageMap() const override;

  private:
    bool deleteLater(HTREEITEM item);

    // Tells Lisp. True where its action has deleted the item.
    bool tellLisp(EventReason reason, HTREEITEM item);
    bool tellLispOfClick(EventReason reason);
    void swapImages(HTREEITEM item) const;

    LRESULT onClick(NMHDR* header);
    LRESULT onCustomDraw(NMHDR* header);
    LRESULT onDoubleClick(NMHDR* header);
    LRESULT onRightClick(NMHDR* header);
    LRESULT onItemExpanded(NMHDR* header);
    LRESULT onItemExpanding(NMHDR* header);
    LRESULT onSelectionChanged(NMHDR* header);
    LRESULT onSingleExpand(NMHDR* header);
    void onButtonDown(UINT keys, POINT at);
    void onDestroy();

    // --- TreeMenu.cpp
    LRESULT onContextMenu(WPARAM w, LPARAM l);
    void openBranches(bool open);
    std::vector<HTREEITEM> branches() const;
    RECT selectedItemRect() const;

    std::vector<std::unique_ptr<CTreeDataItem>> m_itemRecords;
    CImageList m_imageList;
    DeletedItems m_deleted;
    int m_messages = 0;  // that the control is at work on, one within the other
    bool m_isBurying = false;
    POINT m_pressedAt{};  // of the last mouse button, in client pixels
};
