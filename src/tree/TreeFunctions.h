// The Lisp functions wex_tree_…. An item is named by the integer that came when it was made; one that the
// control doesn't know changes nothing. None of them looks at the control's class.
#pragma once

#include "src/shell/LispCall.h"

// (wex_tree_insertparent tile text [image [selected [alternate]]]) -> the new item, the last one at the top.
// With an alternate image the selected one is the image.
void treeInsertParent(LispCall& call);
// (wex_tree_insertchild tile parent text [images …]) -> the new item, the last child of its parent.
void treeInsertChild(LispCall& call);
// (wex_tree_insertparentafter tile previous text [images …]) -> the new item at the top, behind that one.
void treeInsertParentAfter(LispCall& call);
// (wex_tree_insertchildafter tile parent previous text [images …]) -> the new child, behind that one.
void treeInsertChildAfter(LispCall& call);

// (wex_tree_setitemdata tile item data) -> nil. Data that is no integer counts as 0.
void treeSetItemData(LispCall& call);
// (wex_tree_getitemdata tile item) -> its data, 0 where none was set or there is no such tile.
void treeGetItemData(LispCall& call);
// (wex_tree_setitemtext tile item text) -> nil
void treeSetItemText(LispCall& call);
// (wex_tree_getitemtext tile item) -> its text, "" where there is no such tile.
void treeGetItemText(LispCall& call);
// (wex_tree_setitemimages tile item image [selected [alternate]]) -> nil
void treeSetItemImages(LispCall& call);
// (wex_tree_getitemimages tile item) -> (image selected alternate), each -1 for none.
void treeGetItemImages(LispCall& call);

// (wex_tree_deleteitem tile item) -> nil. The item goes with its children; an item that is no integer counts
// as null, with which the control deletes all.
void treeDeleteItem(LispCall& call);
// (wex_tree_deleteallitems tile) -> nil
void treeDeleteAllItems(LispCall& call);

// (wex_tree_sortchildren tile parent) -> nil. By text, the direct children alone.
void treeSortChildren(LispCall& call);
// (wex_tree_getcursel tile) -> the selected item, -1 for none.
void treeGetCurSel(LispCall& call);
// (wex_tree_selectitem tile item) -> nil
void treeSelectItem(LispCall& call);
// (wex_tree_getparent tile item) -> its parent, -1 at the top.
void treeGetParent(LispCall& call);
// (wex_tree_getcount tile) -> nil
void treeGetCount(LispCall& call);
// (wex_tree_expanditem tile item [mode]) -> nil. Mode -1 closes, 0 toggles, 1 opens.
void treeExpandItem(LispCall& call);
// (wex_tree_setupimagelist tile icon …) -> nil. Icons are ids or names in the resource module, also in a
// list; images are numbered from 0 in their order.
void treeSetupImageList(LispCall& call);
