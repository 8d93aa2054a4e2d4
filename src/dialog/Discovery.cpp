// Discovery: when the dialog's window comes up, each control is wrapped in the class of its kind and joined
// to its record.
#include "src/dialog/WexDialog.h"
#include "src/shell/Module.h"

namespace {

constexpr int FIRST_WALKED_ID = 109;
constexpr int LAST_WALKED_ID = 399;
// A mode that Lisp left to the control itself.
constexpr int MODE_AS_CONTROL = -1;
constexpr size_t CAPTION_CHARS = 1000;

ControlKind kindOf(const CWnd& control) {
    const CString className = control.className();
    const CString caption =
        className == L"Button" ? CString(control.GetWindowText().substr(0, CAPTION_CHARS)) : CString();
    return controlKindOf({className, control.GetStyle(), control.GetExStyle(), caption},
                         {g_buttonCaptionA, g_buttonCaptionB, g_buttonCaptionC, g_buttonCaptionD});
}

}  // namespace

void TileControl::attach(WexDialog&, CDataExchange& exchange, int id) { DDX_Control(exchange, id, wnd()); }

void TileControl::applyRecord(CCtrlInfo& tile) {
    if (!tile.m_action.IsEmpty()) m_action = tile.m_action;
}

void WexDialog::DoDataExchange(CDataExchange& exchange) {
    CSnapDlg::DoDataExchange(exchange);
    if (exchange.m_bSaveAndValidate) return;
    discover(exchange, OK_CONTROL_ID);
    discover(exchange, CANCEL_CONTROL_ID);
    for (int id = FIRST_WALKED_ID; id <= LAST_WALKED_ID; ++id) discover(exchange, id);
    m_discovered = true;
}

void WexDialog::discover(CDataExchange& exchange, int id) {
    if (!::GetDlgItem(m_hWnd, id)) return;
    // A Cancel button without an action stays the plain one that the library handles.
    if (id == CANCEL_CONTROL_ID && tileForId(id)->m_action.IsEmpty()) return;
    const CWnd& bare = *GetDlgItem(id);
    const ControlFamily& family = familyOf(kindOf(bare));
    CCtrlInfo* tile = nullptr;
    if (family.make) {
        TileControl& wrapper = *m_controls.emplace_back(family.make());
        wrapper.attach(*this, exchange, id);
        tile = tileForId(id);
        tile->m_control = &wrapper.wnd();
        tile->m_controlType = family.typeWord;
        wrapper.discovered(*this, *tile);
    } else {
        tile = tileForId(id);
    }
    if (tile->m_mode == MODE_AS_CONTROL)
        tile->m_mode = IsWindowEnabled(::GetDlgItem(m_hWnd, id)) ? MODE_ENABLE : MODE_DISABLE;
}
