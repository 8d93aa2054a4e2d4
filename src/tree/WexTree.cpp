#include "src/tree/WexTree.h"

#include <utility>

#include "src/tree/TreeItems.h"

IMPLEMENT_DYNAMIC(WexTree, CTreeCtrl)

namespace {

constexpr auto TREE_SELECTED = EventReason{10};
constexpr auto TREE_RIGHT_CLICKED = EventReason{11};
constexpr auto TREE_DOUBLE_CLICKED = EventReason{12};
constexpr auto TREE_CLICKED = EventReason{13};
constexpr auto TREE_SINGLE_EXPANDED = EventReason{14};
constexpr auto TREE_EXPANDING = EventReason{15};
constexpr auto TREE_EXPANDED = EventReason{16};

const NMTREEVIEWW& details(const NMHDR* header) { return *reinterpret_cast<const NMTREEVIEWW*>(header); }

// Wine tells so where the keys + - * meet an item that is open or closed already.
bool changesNothing(const NMTREEVIEWW& event) {
    const bool isOpen = event.itemNew.state & TVIS_EXPANDED;
    return isOpen ? event.action == TVE_EXPAND : event.action == TVE_COLLAPSE;
}

}  // namespace

const MessageMap& WexTree::messageMap() const {
    static const MessageMap map(CTreeCtrl::messageMap(),
                                {
                                    onReflectedNotify<NM_CLICK, &WexTree::onClick>(),
                                    onReflectedNotify<NM_CUSTOMDRAW, &WexTree::onCustomDraw>(),
                                    onReflectedNotify<NM_DBLCLK, &WexTree::onDoubleClick>(),
                                    onReflectedNotify<NM_RCLICK, &WexTree::onRightClick>(),
                                    onReflectedNotify<TVN_ITEMEXPANDEDW, &WexTree::onItemExpanded>(),
                                    onReflectedNotify<TVN_ITEMEXPANDINGW, &WexTree::onItemExpanding>(),
                                    onReflectedNotify<TVN_SELCHANGEDW, &WexTree::onSelectionChanged>(),
                                    onReflectedNotify<TVN_SINGLEEXPAND, &WexTree::onSingleExpand>(),
                                    on<WM_LBUTTONDOWN, &WexTree::onButtonDown>(),
                                    on<WM_LBUTTONDBLCLK, &WexTree::onButtonDown>(),
                                    on<WM_RBUTTONDOWN, &WexTree::onButtonDown>(),
                                    onRaw<WM_CONTEXTMENU, &WexTree::onContextMenu>(),
                                    on<WM_DESTROY, &WexTree::onDestroy>(),
                                });
    return map;
}

CTreeDataItem& WexTree::addRecord() { return *m_itemRecords.emplace_back(std::make_unique<CTreeDataItem>()); }

CTreeDataItem* WexTree::recordOf(LPARAM parameter) const {
    // Without records the window is going, and items still point to where theirs were.
    return m_itemRecords.empty() ? nullptr : reinterpret_cast<CTreeDataItem*>(parameter);
}

void WexTree::setImages(CImageList images) {
    SendMessage(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images.m_hImageList));
    m_imageList = std::move(images);
}

LRESULT WexTree::WindowProc(UINT message, WPARAM w, LPARAM l) {
    ++m_messages;
    const LRESULT result = CTreeCtrl::WindowProc(message, w, l);
    if (m_messages == 1 && !m_deleted.none() && isLive()) {
        m_isBurying = true;
        m_deleted.bury(*this);
        m_isBurying = false;
    }
    --m_messages;
    return result;
}

bool WexTree::deleteItem(HTREEITEM item) {
    return m_messages > 0 ? deleteLater(item) : deleteTreeItem(*this, item);
}

bool WexTree::deleteLater(HTREEITEM item) {
    // An alert or a dialog of the action may stand before the item goes.
    Invalidate();
    if (!item || item == TVI_ROOT) {
        m_deleted.addAll();
        return true;
    }
    const HTREEITEM inherits[] = {nextTreeItem(*this, TVGN_NEXT, item),
                                  nextTreeItem(*this, TVGN_PARENT, item),
                                  nextTreeItem(*this, TVGN_PREVIOUS, item)};
    if (!treeItem(*this, item)) return false;
    m_deleted.add(item);
    const HTREEITEM selected = nextTreeItem(*this, TVGN_CARET);
    if (!hasDeleted(selected)) return true;
    // The selection goes to whom the control would give it.
    for (const HTREEITEM heir : inherits)
        if (heir && !hasDeleted(heir)) {
            SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(heir));
            break;
        }
    return true;
}

bool WexTree::tellLisp(EventReason reason, HTREEITEM item) {
    if (m_isBurying || hasDeleted(item)) return true;
    publish(*this, std::to_wstring(handleNumber(item)), reason, m_action);
    return hasDeleted(item);
}

// The notification names no item, and no message time or place that also holds for a message of a session.
bool WexTree::tellLispOfClick(EventReason reason) { return tellLisp(reason, itemAt(m_pressedAt)); }

void WexTree::swapImages(HTREEITEM item) const {
    const auto shown = treeItem(*this, item);
    CTreeDataItem* record = shown ? recordOf(shown->parameter) : nullptr;
    if (!record) return;
    const int image = std::exchange(record->m_alternateImage, shown->image);
    setTreeItemImages(*this, item, image, image);
}

// Each answer of 1 keeps the control from working on the item that it told of.

LRESULT WexTree::onClick(NMHDR*) { return tellLispOfClick(TREE_CLICKED); }

// Until the control has done with what is deleted, its place is empty.
LRESULT WexTree::onCustomDraw(NMHDR* header) {
    const NMCUSTOMDRAW& draw = reinterpret_cast<const NMTVCUSTOMDRAW*>(header)->nmcd;
    if (m_deleted.none()) return CDRF_DODEFAULT;
    if (draw.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    const bool isGone =
        draw.dwDrawStage == CDDS_ITEMPREPAINT && hasDeleted(reinterpret_cast<HTREEITEM>(draw.dwItemSpec));
    return isGone ? CDRF_SKIPDEFAULT : CDRF_DODEFAULT;
}

LRESULT WexTree::onDoubleClick(NMHDR*) { return tellLispOfClick(TREE_DOUBLE_CLICKED); }

LRESULT WexTree::onRightClick(NMHDR*) { return tellLispOfClick(TREE_RIGHT_CLICKED); }

LRESULT WexTree::onItemExpanded(NMHDR* header) {
    return tellLisp(TREE_EXPANDED, details(header).itemNew.hItem);
}

LRESULT WexTree::onItemExpanding(NMHDR* header) {
    const NMTREEVIEWW& event = details(header);
    const HTREEITEM item = event.itemNew.hItem;
    if (changesNothing(event)) return 1;
    swapImages(item);
    return tellLisp(TREE_EXPANDING, item);
}

LRESULT WexTree::onSelectionChanged(NMHDR* header) {
    return tellLisp(TREE_SELECTED, details(header).itemNew.hItem);
}

// Wine leaves the new item out and names it as the old one.
LRESULT WexTree::onSingleExpand(NMHDR* header) {
    const NMTREEVIEWW& event = details(header);
    const HTREEITEM item = event.itemNew.hItem ? event.itemNew.hItem : event.itemOld.hItem;
    return tellLisp(TREE_SINGLE_EXPANDED, item) ? TVNRET_SKIPOLD | TVNRET_SKIPNEW : TVNRET_DEFAULT;
}

void WexTree::onButtonDown(UINT /*keys*/, POINT at) {
    m_pressedAt = at;
    Default();
}

void WexTree::onDestroy() {
    m_itemRecords.clear();
    Default();
}
