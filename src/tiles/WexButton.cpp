#include "src/tiles/WexButton.h"

#include "src/dialog/EventBridge.h"
#include "src/dialog/WexDialog.h"

IMPLEMENT_DYNAMIC(WexButton, CButton)

namespace {

// While an action of the dialog is being served, its other buttons' clicks are not.
class ActionGuard {
  public:
    explicit ActionGuard(WexDialog* dialog) : m_dialog(dialog && !dialog->m_inAction ? dialog : nullptr) {
        if (m_dialog) m_dialog->m_inAction = true;
    }
    ~ActionGuard() {
        if (m_dialog) m_dialog->m_inAction = false;
    }
    ActionGuard(const ActionGuard&) = delete;
    ActionGuard& operator=(const ActionGuard&) = delete;

  private:
    WexDialog* m_dialog;
};

}  // namespace

const MessageMap& WexButton::messageMap() const {
    static const MessageMap map(CButton::messageMap(), {onReflected<BN_CLICKED, &WexButton::click>()});
    return map;
}

void WexButton::click() {
    CWnd* parent = GetParent();
    if (!parent) return;
    // An edit box that has the focus must have sent its end of edit before this action runs.
    if (::GetFocus() != m_hWnd) SetFocus();
    auto* dialog = dynamic_cast<WexDialog*>(parent);
    if (dialog && dialog->m_inAction) return;
    const ActionGuard guard(dialog);
    press();
}

void WexButton::press() {
    const int id = GetDlgCtrlID();
    auto* dialog = dynamic_cast<CDialog*>(GetParent());
    const auto end = [dialog] {
        if (dialog) dialog->EndDialog(IDOK);
    };
    if (id == IDCANCEL) end();
    if (!m_action.IsEmpty())
        publish(*this, GetCheck() == BST_CHECKED ? L"1" : L"0", REASON_PRESSED, m_action);
    else if (id == IDOK)
        end();
}
