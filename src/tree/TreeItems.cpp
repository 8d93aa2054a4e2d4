#include "src/tree/TreeItems.h"

#include "src/platform/host/HostServices.h"
#include "src/platform/mfc/RedrawHold.h"
#include "src/tree/WexTree.h"

namespace {

// No class handles the messages about items.
LRESULT sendItem(const CWnd& tree, UINT message, TVITEMW& item) {
    return tree.sendStraight(message, 0, reinterpret_cast<LPARAM>(&item));
}

TVITEMW request(UINT mask, HTREEITEM item) {
    TVITEMW request{};
    request.mask = mask | TVIF_HANDLE;
    request.hItem = item;
    return request;
}

// The control doesn't tell how long a text is.
constexpr size_t FIRST_TEXT_CHARS = 256;
constexpr size_t MOST_TEXT_CHARS = 1 << 20;

}  // namespace

std::optional<TreeItem> treeItem(const CWnd& tree, HTREEITEM item) {
    TVITEMW asked = request(TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM | TVIF_STATE, item);
    asked.stateMask = TVIS_EXPANDED;
    if (!sendItem(tree, TVM_GETITEMW, asked)) return std::nullopt;
    return TreeItem{asked.iImage, asked.iSelectedImage, (asked.state & TVIS_EXPANDED) != 0, asked.lParam};
}

CString treeItemText(const CWnd& tree, HTREEITEM item) {
    for (size_t room = FIRST_TEXT_CHARS;; room *= 4) {
        CString text(room, L'\0');
        TVITEMW asked = request(TVIF_TEXT, item);
        asked.pszText = text.data();
        asked.cchTextMax = static_cast<int>(room);
        if (!sendItem(tree, TVM_GETITEMW, asked)) return {};
        text.resize(wcsnlen(text.data(), room - 1));
        if (text.size() + 1 < room || room >= MOST_TEXT_CHARS) return text;
    }
}

HTREEITEM nextTreeItem(const CWnd& tree, WPARAM relation, HTREEITEM item) {
    return reinterpret_cast<HTREEITEM>(
        tree.sendStraight(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

bool setTreeItemText(const CWnd& tree, HTREEITEM item, const CString& text) {
    TVITEMW change = request(TVIF_TEXT, item);
    change.pszText = const_cast<wchar_t*>(text.c_str());
    return sendItem(tree, TVM_SETITEMW, change);
}

void setTreeItemImages(const CWnd& tree, HTREEITEM item, int image, int selected) {
    TVITEMW change = request(TVIF_IMAGE | TVIF_SELECTEDIMAGE, item);
    change.iImage = image;
    change.iSelectedImage = selected;
    sendItem(tree, TVM_SETITEMW, change);
}

bool deleteTreeItem(const CWnd& tree, HTREEITEM item) {
    return tree.SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

// All is given with the insertion: for any later message the control would look the item up among all others,
// one by one.
HTREEITEM insertTreeItem(CWnd& tree, HTREEITEM parent, HTREEITEM after, const CString& text,
                         const TreeItemImages& images) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    TVITEMW& item = insert.item;
    item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    item.iImage = images.image;
    item.iSelectedImage = images.selected;
    auto* wrapper = WexTree::of(&tree);
    if (wrapper && images.alternate >= 0) {
        CTreeDataItem& record = wrapper->addRecord();
        record.m_alternateImage = images.alternate;
        item.lParam = reinterpret_cast<LPARAM>(&record);
    }
    holdRedraw(tree.m_hWnd);
    const auto made =
        reinterpret_cast<HTREEITEM>(tree.sendStraight(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    if (handleOf(handleNumber(made)) == made) {
        if (wrapper) wrapper->itemMade(made);
        return made;
    }
    hostPrintf(L"The tree item \"%ls\" was taken out again: its handle has more than 32 bits\n",
               text.c_str());
    deleteTreeItem(tree, made);
    return nullptr;
}

CTreeDataItem* treeRecord(const CWnd& tree, HTREEITEM item) {
    const auto* wrapper = WexTree::of(&tree);
    const auto known = wrapper ? treeItem(tree, item) : std::nullopt;
    return known ? wrapper->recordOf(known->parameter) : nullptr;
}

CTreeDataItem* needTreeRecord(CWnd& tree, HTREEITEM item) {
    auto* wrapper = WexTree::of(&tree);
    const auto known = wrapper ? treeItem(tree, item) : std::nullopt;
    if (!known) return nullptr;
    if (CTreeDataItem* record = wrapper->recordOf(known->parameter)) return record;
    CTreeDataItem& record = wrapper->addRecord();
    TVITEMW change = request(TVIF_PARAM, item);
    change.lParam = reinterpret_cast<LPARAM>(&record);
    sendItem(tree, TVM_SETITEMW, change);
    return &record;
}
