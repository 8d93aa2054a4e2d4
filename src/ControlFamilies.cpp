// The control families of the product: which wrapper and which type word a kind of control gets, and what its
// values and its entries are.
#include <iterator>

#include "src/dialog/ButtonState.h"
#include "src/dialog/TileControl.h"
#include "src/grid/WexGrid.h"
#include "src/listctrl/ListRows.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/platform/base/DialogResources.h"
#include "src/report/WexReportTab.h"
#include "src/slides/WexSlideImage.h"
#include "src/tabs/WexTabCtrl.h"
#include "src/tiles/ListEntries.h"
#include "src/tiles/WexButton.h"
#include "src/tiles/WexButtonSt.h"
#include "src/tiles/WexComboBox.h"
#include "src/tiles/WexEditBox.h"
#include "src/tiles/WexFrame.h"
#include "src/tiles/WexListBox.h"
#include "src/tiles/WexStatic.h"
#include "src/tree/WexTree.h"

namespace {

template <class Wrapper>
std::unique_ptr<TileControl> make() {
    return std::make_unique<Wrapper>();
}

void applyEditLimit(const CWnd& edit, const CCtrlInfo& tile) {
    edit.SendMessage(EM_LIMITTEXT, tile.m_editLimit);
}

constexpr ControlFamily FAMILIES[] = {
    {.kind = ControlKind::slideImage, .typeWord = L"Slide", .make = make<WexSlideImage>},
    {.kind = ControlKind::frame, .typeWord = L"Frame", .make = make<WexFrame>},
    {.kind = ControlKind::imageButton, .typeWord = L"ImageButton", .make = make<WexButtonSt>},
    {.kind = ControlKind::button,
     .typeWord = L"Button",
     .make = make<WexButton>,
     .applyMessages = applyCheckState,
     .setValue = setButtonValue},
    {.kind = ControlKind::grid,
     .typeWord = L"GXWND",
     .make = make<WexGrid>,
     .emptyEntries = emptyGrid,
     .endEntries = endGridList},
    {.kind = ControlKind::tab,
     .typeWord = L"SysTabControl32",
     .make = make<WexTabCtrl>,
     .setValue = setTabValue},
    {.kind = ControlKind::tree, .typeWord = L"SysTreeView32", .make = make<WexTree>},
    {.kind = ControlKind::edit,
     .typeWord = L"Edit",
     .make = make<WexEditBox>,
     .applyMessages = applyEditLimit,
     .setValue = setEditValue},
    {.kind = ControlKind::staticText, .typeWord = L"Static", .make = make<WexStatic>},
    {.kind = ControlKind::listBox,
     .typeWord = L"ListBox",
     .make = make<WexListBox>,
     .applyMessages = applyListBox,
     .setValue = setListBoxValue,
     .emptyEntries = emptyListBox,
     .addEntry = addToListBox},
    {.kind = ControlKind::comboBox,
     .typeWord = L"ComboBox",
     .make = make<WexComboBox>,
     .applyMessages = applyComboBox,
     .setValue = setComboBoxValue,
     .emptyEntries = emptyComboBox,
     .addEntry = addToComboBox},
    {.kind = ControlKind::listControl,
     .typeWord = L"SysListView32",
     .make = make<WexListCtrl>,
     .applyMessages = applyListControl,
     .setValue = setListControlValue,
     .emptyEntries = emptyListControl,
     .addEntry = addToListControl},
    {.kind = ControlKind::unknown, .typeWord = L""},
};

constexpr bool standInOrder() {
    for (size_t at = 0; at < std::size(FAMILIES); ++at)
        if (FAMILIES[at].kind != static_cast<ControlKind>(at)) return false;
    return std::size(FAMILIES) == static_cast<size_t>(ControlKind::unknown) + 1;
}
static_assert(standInOrder(), "a family is found by its place: one row for each ControlKind, in its order");

constexpr ExtraControl REPORT_TAB = {
    .id = REPORT_TAB_ID, .typeWord = L"SysTabControl32", .resizeCode = 63, .make = make<WexReportTab>};

}  // namespace

const ExtraControl* extraControlOf(const CString& dialogName) {
    return dialogName == REPORT_DIALOG ? &REPORT_TAB : nullptr;
}

const ControlFamily& familyOf(ControlKind kind) { return FAMILIES[static_cast<size_t>(kind)]; }

const ControlFamily* familyOfType(const CString& typeWord) {
    for (const ControlFamily& family : FAMILIES)
        if (typeWord == family.typeWord) return &family;
    return nullptr;
}
