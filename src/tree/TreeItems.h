// Items of a tree control, wrapped or bare, as Lisp names and works them. A handle crosses into Lisp as the
// low 32 bits of the control's own, and comes back with its sign extended; it is not looked into.
#pragma once

#include <optional>

#include "src/platform/mfc/CWnd.h"

inline int32_t handleNumber(HTREEITEM item) { return static_cast<int32_t>(reinterpret_cast<intptr_t>(item)); }
inline HTREEITEM handleOf(int32_t number) {
    return reinterpret_cast<HTREEITEM>(static_cast<intptr_t>(number));
}

// Numbers in the tree's image list; -1 is no image.
struct TreeItemImages {
    int image = -1;
    int selected = -1;
    int alternate = -1;  // below 0 for none
};

// As the control has it.
struct TreeItem {
    int image;
    int selected;
    bool isOpen;
    LPARAM parameter;
};
// Nothing for an item that the control doesn't know; so is the text.
std::optional<TreeItem> treeItem(const CWnd& tree, HTREEITEM item);
CString treeItemText(const CWnd& tree, HTREEITEM item);
// The item that stands in that relation to `item`, a TVGN_ value; null for none.
HTREEITEM nextTreeItem(const CWnd& tree, WPARAM relation, HTREEITEM item = nullptr);

// False for an item that the control doesn't know.
bool setTreeItemText(const CWnd& tree, HTREEITEM item, const CString& text);
void setTreeItemImages(const CWnd& tree, HTREEITEM item, int image, int selected);
// With its children. All items for null and TVI_ROOT. False for an item that the control doesn't know.
bool deleteTreeItem(const CWnd& tree, HTREEITEM item);

// Inserts behind `after`, which may be TVI_LAST, under `parent`, null for the top. An alternate image makes a
// record, where the tree keeps records. Null where the control makes no item, and where its handle would not
// survive the way through Lisp: that one is told on the command line.
HTREEITEM insertTreeItem(CWnd& tree, HTREEITEM parent, HTREEITEM after, const CString& text,
                         const TreeItemImages& images);

// The record of an item, made if it has none; null where the tree keeps no records or doesn't know the item.
struct CTreeDataItem* needTreeRecord(CWnd& tree, HTREEITEM item);
// The same, but null for an item that has none.
CTreeDataItem* treeRecord(const CWnd& tree, HTREEITEM item);
