// Discovery: when the dialog's window comes up, each control is wrapped in the class of its kind and joined
// to its record.
#include <map>

#include "src/dialog/WexDialog.h"
#include "src/shell/Module.h"

namespace {

// A mode that Lisp left to the control itself.
constexpr int MODE_AS_CONTROL = -1;
constexpr int CAPTION_CHARS = 1000;
constexpr int CLASS_NAME_CHARS = 255;

CString textOf(HWND window, int(WINAPI* get)(HWND, wchar_t*, int), int limit) {
    CString text(limit, L'\0');
    text.resize(get(window, text.data(), limit + 1));
    return text;
}

ControlKind kindOf(HWND control) {
    const CString className = textOf(control, GetClassNameW, CLASS_NAME_CHARS);
    const CString caption =
        className == L"Button" ? textOf(control, GetWindowTextW, CAPTION_CHARS) : CString();
    const auto style = [control](int which) {
        return static_cast<uint32_t>(GetWindowLongPtrW(control, which));
    };
    return controlKindOf({className, style(GWL_STYLE), style(GWL_EXSTYLE), caption},
                         {g_buttonCaptionA, g_buttonCaptionB, g_buttonCaptionC, g_buttonCaptionD});
}

// The dialog's own children in rising order of their ids, the first in the window order for each. One call
// lists them all, where asking for each id in turn costs more than the dialog.
std::map<int, HWND> childrenById(HWND dialog) {
    struct Listing {
        HWND dialog;
        std::map<int, HWND> children;
    } listing{dialog, {}};
    const WNDENUMPROC add = [](HWND child, LPARAM to) -> BOOL {
        auto& list = *reinterpret_cast<Listing*>(to);
        if (GetParent(child) == list.dialog) list.children.emplace(GetDlgCtrlID(child), child);
        return TRUE;
    };
    EnumChildWindows(dialog, add, reinterpret_cast<LPARAM>(&listing));
    return std::move(listing.children);
}

}  // namespace

void TileControl::attach(WexDialog&, HWND control) { wnd().SubclassWindow(control); }

void TileControl::applyRecord(CCtrlInfo& tile) {
    if (!tile.m_action.IsEmpty()) m_action = tile.m_action;
}

void WexDialog::DoDataExchange(CDataExchange& exchange) {
    CSnapDlg::DoDataExchange(exchange);
    if (exchange.m_bSaveAndValidate) return;
    for (const auto& [id, control] : childrenById(m_hWnd))
        if (isWalkedId(id)) discover(id, control);
    m_discovered = true;
}

// Where the template lacks the control, its record waits in vain.
void WexDialog::addExtraControl() {
    const ExtraControl* extra = extraControlOf(m_name);
    if (!extra) return;
    CCtrlInfo& tile = *tileForId(extra->id);
    tile.m_controlType = extra->typeWord;
    tile.m_resizeCode = extra->resizeCode;
    const HWND control = ::GetDlgItem(m_hWnd, extra->id);
    if (!control) return;
    TileControl& wrapper = *m_controls.emplace_back(extra->make());
    wrapper.attach(*this, control);
    tile.m_control = &wrapper.wnd();
    wrapper.discovered(*this, tile);
    computeAnchors(wrapper.wnd(), tile);
}

void WexDialog::discover(int id, HWND control) {
    // A Cancel button without an action stays the plain one that the library handles.
    if (id == CANCEL_CONTROL_ID && tileForId(id)->m_action.IsEmpty()) return;
    const ControlFamily& family = familyOf(kindOf(control));
    CCtrlInfo* tile = nullptr;
    // A wrapper may put a window of its own in the place of the control.
    HWND window = control;
    if (family.make) {
        TileControl& wrapper = *m_controls.emplace_back(family.make());
        wrapper.attach(*this, control);
        tile = tileForId(id);
        tile->m_control = &wrapper.wnd();
        window = wrapper.wnd().m_hWnd;
        tile->m_controlType = family.typeWord;
        wrapper.discovered(*this, *tile);
    } else {
        tile = tileForId(id);
    }
    if (tile->mode() == MODE_AS_CONTROL) tile->setMode(IsWindowEnabled(window) ? MODE_ENABLE : MODE_DISABLE);
}
