// The control families of the product: which wrapper and which type word a kind of control gets.
#include "src/dialog/TileControl.h"
#include "src/grid/WexGrid.h"
#include "src/listctrl/ListRows.h"
#include "src/listctrl/WexListCtrl.h"
#include "src/slides/WexSlideImage.h"
#include "src/tabs/WexTabCtrl.h"
#include "src/tiles/ListRecords.h"
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

void applyCheckState(const CWnd& button, const CCtrlInfo& tile) {
    if (tile.m_value == L"1" || tile.m_value == L"0") button.SendMessage(BM_SETCHECK, tile.m_value == L"1");
}

void applyEditLimit(const CWnd& edit, const CCtrlInfo& tile) {
    edit.SendMessage(EM_LIMITTEXT, tile.m_editLimit);
}

// In the order of ControlKind.
constexpr ControlFamily families[] = {
    {ControlKind::slideImage, L"Slide", make<WexSlideImage>, nullptr},
    {ControlKind::frame, L"Frame", make<WexFrame>, nullptr},
    {ControlKind::imageButton, L"ImageButton", make<WexButtonSt>, nullptr},
    {ControlKind::button, L"Button", make<WexButton>, applyCheckState},
    {ControlKind::grid, L"GXWND", make<WexGrid>, nullptr},
    {ControlKind::tab, L"SysTabControl32", make<WexTabCtrl>, nullptr},
    {ControlKind::tree, L"SysTreeView32", make<WexTree>, nullptr},
    {ControlKind::edit, L"Edit", make<WexEditBox>, applyEditLimit},
    {ControlKind::staticText, L"Static", make<WexStatic>, nullptr},
    {ControlKind::listBox, L"ListBox", make<WexListBox>, applyListBox},
    {ControlKind::comboBox, L"ComboBox", make<WexComboBox>, applyComboBox},
    {ControlKind::listControl, L"SysListView32", make<WexListCtrl>, applyListControl},
    {ControlKind::unknown, L"", nullptr, nullptr},
};

}  // namespace

const ControlFamily& familyOf(ControlKind kind) { return families[static_cast<size_t>(kind)]; }

const ControlFamily* familyOfType(const CString& typeWord) {
    for (const ControlFamily& family : families)
        if (typeWord == family.typeWord) return &family;
    return nullptr;
}
