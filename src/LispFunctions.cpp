#include "src/LispFunctions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "src/LispSignatures.h"
#include "src/dialog/DialogFunctions.h"
#include "src/grid/CellFunctions.h"
#include "src/grid/GridFunctions.h"
#include "src/listctrl/ListCtrlFunctions.h"
#include "src/listctrl/SelectionFunctions.h"
#include "src/records/RecordFunctions.h"
#include "src/slides/ImageFunctions.h"
#include "src/tabs/TabFunctions.h"
#include "src/tiles/EditFunctions.h"
#include "src/tiles/ListFunctions.h"
#include "src/tiles/ResizeFunctions.h"
#include "src/tiles/ValueFunctions.h"
#include "src/tiles/WindowFunctions.h"
#include "src/tree/TreeFunctions.h"

namespace {

constexpr WexLispFunctionRow ROWS[] = {
    {L"wex_new_dialog", withArguments<newDialog>},
    {L"wex_start_dialog", withAnyArguments<startDialog>},
    {L"wex_done_dialog", withAnyArguments<doneDialog>},
    {L"wex_unload_dialog", withAnyArguments<answerNil>},
    {L"wex_load_dialog", withAnyArguments<answerNil>},
    {L"wex_action_tile", withArguments<actionTile>},
    {L"wex_set_tile", withArguments<setTile>},
    {L"wex_mode_tile", withArguments<modeTile>},
    {L"wex_get_attr", withAnyArguments<getAttr>},
    {L"wex_get_tile", withArguments<getTile>},
    {L"wex_start_image", withArguments<startImage>},
    {L"wex_vector_image", withArguments<vectorImage>},
    {L"wex_fill_image", withArguments<fillImage>},
    {L"wex_dimx_tile", withArguments<dimxTile>},
    {L"wex_dimy_tile", withArguments<dimyTile>},
    {L"wex_slide_image", withArguments<slideImage>},
    {L"wex_end_image", withAnyArguments<endImage>},
    {L"wex_start_list", withArguments<startList>},
    {L"wex_add_list", withArguments<addList>},
    {L"wex_end_list", withAnyArguments<endList>},
    {L"wex_setaction_oninit", withArguments<setActionOnInit>},
    {L"wex_setaction_onsize", withArguments<setActionOnSize>},
    {L"wex_listctrl_addcolumn", withArguments<listAddColumn>},
    {L"wex_listctrl_additem", withArguments<listAddItem>},
    {L"wex_listctrl_setitem", withArguments<listAddItem>},
    {L"wex_listctrl_setcolumnwidth", withArguments<listSetColumnWidth>},
    {L"wex_listctrl_getcolumnwidth", withArguments<listGetColumnWidth>},
    {L"wex_listctrl_showgridlines", withArguments<listShowGridLines>},
    {L"wex_listctrl_setcolumns", withArguments<listSetColumns>},
    {L"wex_listctrl_setcolumnreference", withArguments<listSetColumnReference>},
    {L"wex_listctrl_deletecolumn", withArguments<listDeleteColumn>},
    {L"wex_listctrl_renamecolumn", withArguments<listRenameColumn>},
    {L"wex_listctrl_getcolcount", withArguments<listGetColCount>},
    {L"wex_listctrl_allowsorting", withArguments<listAllowSorting>},
    {L"wex_listctrl_getselectednths", withArguments<listGetSelectedNths>},
    {L"wex_listctrl_enabledbclk", withArguments<listEnableDblClick>},
    {L"wex_listctrl_keephighlight", withArguments<listKeepHighlight>},
    {L"wex_listctrl_setitemcount", withArguments<listSetItemCount>},
    {L"wex_loadpicturefile", withArguments<loadPictureFile>},
    {L"wex_setresizing", withArguments<setResizing>},
    {L"wex_setminresizing", withArguments<setMinResizing>},
    {L"wex_setmaxresizing", withArguments<setMaxResizing>},
    {L"wex_settitlebar", withArguments<setTitleBar>},
    {L"wex_grid_setrowcolumns", withArguments<gridSetRowColumns>},
    {L"wex_grid_setcell", withArguments<gridSetCell>},
    {L"wex_grid_getcell", withArguments<gridGetCell>},
    {L"wex_grid_clearcells", withArguments<gridClearCells>},
    {L"wex_tab_add", withArguments<tabAdd>},
    {L"wex_grid_setrowheight", withArguments<gridSetRowHeight>},
    {L"wex_grid_setcolumnwidth", withArguments<gridSetColumnWidth>},
    {L"wex_tree_insertparent", withArguments<treeInsertParent>},
    {L"wex_tree_insertchild", withArguments<treeInsertChild>},
    {L"wex_tree_insertparentafter", withArguments<treeInsertParentAfter>},
    {L"wex_tree_insertchildafter", withArguments<treeInsertChildAfter>},
    {L"wex_tree_setitemdata", withArguments<treeSetItemData>},
    {L"wex_tree_getitemdata", withArguments<treeGetItemData>},
    {L"wex_tree_setitemtext", withArguments<treeSetItemText>},
    {L"wex_tree_getitemtext", withArguments<treeGetItemText>},
    {L"wex_tree_setitemimages", withArguments<treeSetItemImages>},
    {L"wex_tree_getitemimages", withArguments<treeGetItemImages>},
    {L"wex_tree_deleteitem", withArguments<treeDeleteItem>},
    {L"wex_tree_deleteallitems", withArguments<treeDeleteAllItems>},
    {L"wex_tree_sortchildren", withArguments<treeSortChildren>},
    {L"wex_tree_getcursel", withArguments<treeGetCurSel>},
    {L"wex_tree_selectitem", withArguments<treeSelectItem>},
    {L"wex_tree_getparent", withArguments<treeGetParent>},
    {L"wex_tree_getcount", withArguments<treeGetCount>},
    {L"wex_tree_expanditem", withArguments<treeExpandItem>},
    {L"wex_tree_setupimagelist", withArguments<treeSetupImageList>},
    {L"wex_edit_setasnumeric", withArguments<editSetAsNumeric>},
    {L"wex_edit_setasangular", withArguments<editSetAsAngular>},
    {L"wex_grid_sortcolbytext", withArguments<gridSortColByText>},
    {L"wex_movecontrol", withArguments<moveControl>},
    {L"wex_start_controlmove", withArguments<startControlMove>},
    {L"wex_end_controlmove", withAnyArguments<endControlMove>},
    {L"wex_enable_dialog", withAnyArguments<enableDialog>},
    {L"wex_grid_getcolumncount", withArguments<gridGetColumnCount>},
    {L"wex_grid_setrow", withArguments<gridSetRow>},
    {L"wex_edit_seteditlimit", withArguments<editSetEditLimit>},
    {L"wex_grid_addrow", withArguments<gridAddRow>},
    {L"wex_grid_getrowcount", withArguments<gridGetRowCount>},
    {L"wex_grid_setjustification", withArguments<gridSetJustification>},
    {L"wex_alert", withArguments<alert>},
    {L"wex_fp_setupdatasrc", withAnyArguments<recordsSetUp>},
    {L"wex_fp_cleardatasrc", withAnyArguments<recordsClear>},
    {L"wex_fp_getcount", withAnyArguments<recordsGetCount>},
    {L"wex_fp_getitem", withAnyArguments<recordsGetItem>},
    {L"wex_fp_setitem", withAnyArguments<recordsSetItem>},
    {L"wex_fp_additem", withAnyArguments<recordsAddItem>},
    {L"wex_fp_remitem", withAnyArguments<recordsRemoveItem>},
    {L"wex_fp_getadded", withAnyArguments<recordsGetAdded>},
    {L"wex_fp_getmodified", withAnyArguments<recordsGetModified>},
    {L"wex_fp_getdeleted", withAnyArguments<recordsGetDeleted>},
    {L"wex_fp_savedb", withAnyArguments<recordsForgetChanges>},
};
static_assert(std::size(ROWS) == 94);
static_assert(std::equal(std::begin(ROWS), std::end(ROWS), std::begin(LISP_SIGNATURES),
                         std::end(LISP_SIGNATURES),
                         [](const WexLispFunctionRow& row, const wchar_t* signature) {
                             return std::wstring_view(row.name) == signatureName(signature);
                         }),
              "each row has its signature");

constexpr auto SLOTS = [] {
    std::array<const WexLispFunctionRow*, std::size(ROWS)> pointers{};
    for (size_t code = 0; code < pointers.size(); ++code) pointers[code] = &ROWS[code];
    return pointers;
}();

}  // namespace

LispTable lispFunctions() { return SLOTS; }
