#include "src/tree/TreeFunctions.h"

#include "src/dialog/CurrentTile.h"
#include "src/platform/mfc/RedrawHold.h"
#include "src/tree/TreeImages.h"
#include "src/tree/TreeItems.h"
#include "src/tree/WexTree.h"

namespace {

// An item that no control knows.
const HTREEITEM UNKNOWN_ITEM = reinterpret_cast<HTREEITEM>(-1);

// Where most functions have their item, counted from 1.
constexpr int32_t ITEM_ARGUMENT = 2;

bool isTree(const CWnd& control) { return WexTree::of(&control) || control.className() == L"SysTreeView32"; }

// The control of the tile argument, whatever it is.
CWnd* treeArgument(LispCall& call) {
    CWnd* control = controlOf(call.tile());
    if (control && !isTree(*control)) warnOtherKind(*control, L"trees");
    return control;
}

// Tells the author of an item that the tree doesn't know. Asked where it couldn't be worked, as the control
// takes long to tell.
void warnUnlessItem(const CWnd& tree, HTREEITEM item) {
    // So does an argument of another type, which was told of as that: this is its kind of warning.
    if (!item) return warn(WARN_ARGUMENT + ITEM_ARGUMENT, L"the tree has no item 0");
    // The platform's own numbers, such as that of all items.
    const bool isPlace =
        handleNumber(item) >= handleNumber(TVI_ROOT) && handleNumber(item) <= handleNumber(TVI_SORT);
    if (isPlace || !isHeard(WARN_OUTSIDE) || !isTree(tree) || (item != UNKNOWN_ITEM && treeItem(tree, item)))
        return;
    const std::wstring name =
        item == UNKNOWN_ITEM ? L"such item" : L"item " + std::to_wstring(handleNumber(item));
    tellWarning(WARN_OUTSIDE, L"the tree has no " + name);
}

// One that is no integer is null.
HTREEITEM itemArgument(LispCall& call, const CWnd* tree) {
    const HTREEITEM item = handleOf(call.shortOrLong().value_or(0));
    const auto* wrapper = WexTree::of(tree);
    return wrapper && wrapper->hasDeleted(item) ? UNKNOWN_ITEM : item;
}

// The tile and the item that most functions begin with.
struct Target {
    CWnd* tree;
    HTREEITEM item;
};

Target targetArguments(LispCall& call) {
    CWnd* tree = treeArgument(call);
    return {tree, itemArgument(call, tree)};
}

// Whether the function has a tree to work on, and all arguments that it has read.
bool canWork(const LispCall& call, const CWnd* tree) { return tree && !call.lacksArgument(); }

// Up to two more numbers behind the first image. With a third one the second is passed over.
TreeItemImages imageArguments(int image, LispCall& call) {
    TreeItemImages images{image};
    images.selected = call.shortOr(-1);
    if (const auto alternate = call.optionalShort()) {
        images.selected = image;
        images.alternate = *alternate;
    }
    return images;
}

// To select and to sort, null is none and the top.
void sendItem(const CWnd& tree, UINT message, WPARAM how, HTREEITEM item) {
    const bool worked = tree.SendMessage(message, how, reinterpret_cast<LPARAM>(item));
    if (!worked && (item || message == TVM_EXPAND)) warnUnlessItem(tree, item);
}

void insertItem(LispCall& call, bool underParent, bool behindPrevious) {
    CWnd* tree = treeArgument(call);
    const HTREEITEM parent = underParent ? itemArgument(call, tree) : nullptr;
    const HTREEITEM after = behindPrevious ? itemArgument(call, tree) : TVI_LAST;
    const CString text = call.textOrEmpty();
    if (!canWork(call, tree)) return call.retNil();
    const TreeItemImages images = imageArguments(call.shortOr(-1), call);
    // 0, or -1 where nothing is selected, is how a program says that there is none before. Asked first, as a
    // new item may get the handle of one that has gone.
    if (behindPrevious && after && after != UNKNOWN_ITEM) warnUnlessItem(*tree, after);
    const HTREEITEM made = insertTreeItem(*tree, parent, after, text, images);
    if (!made && parent) warnUnlessItem(*tree, parent);
    call.retLong(handleNumber(made));
}

// -1 for none, and for one that is deleted.
void answerItem(LispCall& call, const CWnd* tree, HTREEITEM item) {
    const auto* wrapper = WexTree::of(tree);
    if (!item || (wrapper && wrapper->hasDeleted(item)))
        call.ret(-1);
    else
        call.retLong(handleNumber(item));
}

bool deleteItem(CWnd& tree, HTREEITEM item) {
    auto* wrapper = WexTree::of(&tree);
    return wrapper ? wrapper->deleteItem(item) : deleteTreeItem(tree, item);
}

// The code of TVM_EXPAND; nothing for a mode that there isn't.
std::optional<WPARAM> expandCode(int mode) {
    switch (mode) {
        case -1:
            return TVE_COLLAPSE;
        case 0:
            return TVE_TOGGLE;
        case 1:
            return TVE_EXPAND;
        default:
            return std::nullopt;
    }
}

}  // namespace

void treeInsertParent(LispCall& call) { insertItem(call, false, false); }

void treeInsertChild(LispCall& call) { insertItem(call, true, false); }

void treeInsertParentAfter(LispCall& call) { insertItem(call, false, true); }

void treeInsertChildAfter(LispCall& call) { insertItem(call, true, true); }

void treeSetItemData(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    const int data = call.shortOrLong().value_or(0);
    CTreeDataItem* record = canWork(call, tree) ? needTreeRecord(*tree, item) : nullptr;
    if (record)
        record->m_data = data;
    else if (tree)
        warnUnlessItem(*tree, item);
    call.retNil();
}

void treeGetItemData(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (call.lacksArgument()) return call.retNil();
    if (const CTreeDataItem* record = tree ? treeRecord(*tree, item) : nullptr)
        return call.retLong(record->m_data);
    if (tree) warnUnlessItem(*tree, item);
    call.ret(0);
}

void treeSetItemText(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    const CString text = call.textOrEmpty();
    if (canWork(call, tree) && !setTreeItemText(*tree, item, text)) warnUnlessItem(*tree, item);
    call.retNil();
}

void treeGetItemText(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (call.lacksArgument()) return call.retNil();
    const CString text = tree ? treeItemText(*tree, item) : CString();
    if (tree && text.IsEmpty()) warnUnlessItem(*tree, item);
    call.ret(text);
}

void treeSetItemImages(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    const int image = call.shortNumber().value_or(-1);
    if (!canWork(call, tree)) return call.retNil();
    const TreeItemImages images = imageArguments(image, call);
    setTreeItemImages(*tree, item, images.image, images.selected);
    if (CTreeDataItem* record = needTreeRecord(*tree, item))
        record->m_alternateImage = images.alternate;
    else
        warnUnlessItem(*tree, item);
    call.retNil();
}

void treeGetItemImages(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (!canWork(call, tree)) return call.retNil();
    const auto shown = treeItem(*tree, item);
    if (!shown) warnUnlessItem(*tree, item);
    const CTreeDataItem* record = treeRecord(*tree, item);
    const auto asShort = [](int number) -> int { return static_cast<int16_t>(number); };
    const int images[] = {asShort(shown ? shown->image : -1), asShort(shown ? shown->selected : -1),
                          asShort(record ? record->m_alternateImage : -1)};
    call.ret(images);
}

void treeDeleteItem(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (canWork(call, tree) && !deleteItem(*tree, item)) warnUnlessItem(*tree, item);
    call.retNil();
}

void treeDeleteAllItems(LispCall& call) {
    if (CWnd* tree = treeArgument(call)) deleteItem(*tree, TVI_ROOT);
    call.retNil();
}

void treeSortChildren(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (canWork(call, tree)) {
        holdRedraw(tree->m_hWnd);
        sendItem(*tree, TVM_SORTCHILDREN, 0, item);
    }
    call.retNil();
}

void treeGetCurSel(LispCall& call) {
    const CWnd* tree = treeArgument(call);
    answerItem(call, tree, tree ? nextTreeItem(*tree, TVGN_CARET) : nullptr);
}

void treeSelectItem(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (canWork(call, tree)) {
        releaseRedraw();  // a tree whose redraw is held doesn't scroll
        sendItem(*tree, TVM_SELECTITEM, TVGN_CARET, item);
    }
    call.retNil();
}

void treeGetParent(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    if (call.lacksArgument()) return call.retNil();
    const HTREEITEM parent = tree ? nextTreeItem(*tree, TVGN_PARENT, item) : nullptr;
    if (tree && !parent) warnUnlessItem(*tree, item);
    answerItem(call, tree, parent);
}

// kept: the count is given, and then nil, which stands.
void treeGetCount(LispCall& call) {
    if (const CWnd* tree = treeArgument(call))
        call.retForNow(static_cast<int>(tree->SendMessage(TVM_GETCOUNT)));
    call.retNil();
}

void treeExpandItem(LispCall& call) {
    const auto [tree, item] = targetArguments(call);
    const bool works = canWork(call, tree);
    const int mode = call.shortOr(0);
    const auto code = expandCode(mode);
    if (!code) call.warnOfArgument([=] { return noSuch(L"mode", mode); });
    if (works && code) {
        releaseRedraw();
        sendItem(*tree, TVM_EXPAND, *code, item);
    }
    call.retNil();
}

void treeSetupImageList(LispCall& call) {
    CWnd* tree = treeArgument(call);
    const HostValue* icons = call.rest();
    if (!icons) call.warnMissing();
    for (const HostValue* node = icons; node; node = node->next)
        if (node->type == HV_REAL || node->type == HV_LONG || node->type == HV_TRUE || node->type == HV_POINT)
            call.warnMistyped(*node, L"the number or the name of an icon");
    if (tree && icons) setTreeImages(*tree, icons);
    call.retNil();
}
