#include "src/dialog/WexDialog.h"

#include <utility>

#include "src/dialog/EventBridge.h"
#include "src/dialog/Pressable.h"
#include "src/dialog/TileWarnings.h"
#include "src/platform/base/DialogResources.h"

IMPLEMENT_DYNAMIC(WexDialog, CSnapDlg)

// Never deleted: at the end of the process statics are destroyed in no useful order, and the destructor of a
// dialog would use some that are gone.
DialogRegistry<WexDialog>& g_dialogs = *new DialogRegistry<WexDialog>;
CString g_dialogName;
int32_t g_doneStatus = 0;

namespace {

// How many pages a key turns: Ctrl+Tab and Ctrl+PageDown one on, Ctrl+Shift+Tab and Ctrl+PageUp one back.
int pageStep(const MSG& message) {
    const auto held = [](int key) { return GetKeyState(key) < 0; };
    if (message.message != WM_KEYDOWN || !held(VK_CONTROL)) return 0;
    if (message.wParam == VK_TAB) return held(VK_SHIFT) ? -1 : 1;
    return message.wParam == VK_NEXT ? 1 : message.wParam == VK_PRIOR ? -1 : 0;
}

bool canBeWorked(HWND control) { return IsWindowVisible(control) && IsWindowEnabled(control); }

// Whether the platform finds a control by that letter, as a caption names it.
bool isInCaption(HWND dialog, wchar_t letter) {
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const auto code = ::SendMessageW(child, WM_GETDLGCODE, 0, 0);
        const bool hasCaption = code & (DLGC_BUTTON | DLGC_STATIC);
        wchar_t caption[256] = {};
        if (hasCaption && canBeWorked(child) && ::GetWindowTextW(child, caption, ARRAYSIZE(caption)) &&
            mnemonicOf(caption) == letter)
            return true;
    }
    return false;
}

// Wine makes no WM_CONTEXTMENU of the menu key, and its trees none of Shift+F10.
bool asksForMenu(const MSG& message) {
    if (message.message == WM_KEYUP) return message.wParam == VK_APPS;
    return message.message == WM_SYSKEYDOWN && message.wParam == VK_F10 && GetKeyState(VK_SHIFT) < 0;
}

}  // namespace

WexDialog::WexDialog(const DialogSource& source, CWnd* parent)
    : CSnapDlg(static_cast<UINT>(source.id), parent),
      m_templateId(static_cast<UINT>(source.id)),
      m_source(source) {
    m_templateModule = source.templates;
    if (auto list = source.keyList()) {
        m_name = std::move(list->name);
        m_tiles.keys = KeyList(std::move(list->keys));
    }
}

WexDialog::~WexDialog() { deleteControls(); }

void WexDialog::deleteControls() {
    while (!m_controls.empty()) m_controls.pop_back();
}

CWnd* WexDialog::itemForKey(const CString& key) const { return itemForId(idForKey(key)); }

// The platform takes longer to find a child than most functions then work on it, so a wrapper is found by its
// record. The dialog's own wrapper sees its window go, so that the platform needn't be asked for that either.
CWnd* WexDialog::itemForId(int id) const {
    if (!m_hWnd) return nullptr;
    CWnd* wrapper = m_tiles.controlForId(id);
    const bool isThere = wrapper && CWnd::FromHandlePermanent(wrapper->m_hWnd) == wrapper;
    return isThere ? wrapper : GetDlgItem(id);
}

CWnd* WexDialog::itemFor(const TileAddress& tile) const {
    CWnd* item = tile.isById() ? itemForId(tile.controlId()) : itemForKey(tile.key);
    if (!item && m_hWnd) [[unlikely]]
        warnUnknownTile(*this, tile);
    return item;
}

CCtrlInfo* WexDialog::tileFor(const TileAddress& tile) {
    CCtrlInfo* record = tile.isById() ? tileForId(tile.controlId()) : tileForKey(tile.key);
    if (!m_hWnd) checkTile(tile, record);
    return record;
}

void WexDialog::checkTile(const TileAddress& tile, const CCtrlInfo* record) const {
    const bool hasKey =
        tile.isById() ? m_tiles.keys.hasId(tile.controlId()) : record && record->m_ctrlId >= 0;
    if (m_hWnd)
        warnUnknownTile(*this, tile);
    else if (!hasKey)
        warnUnlessInTemplate(*this, tile);
}

const MessageMap& WexDialog::messageMap() const {
    static const MessageMap map(CSnapDlg::messageMap(),
                                {
                                    on<WM_PAINT, &WexDialog::onPaint>(),
                                    on<WM_SIZE, &WexDialog::onSize>(),
                                    on<WM_HELP, &WexDialog::onHelp>(),
                                    on<WM_CTLCOLORSTATIC, &WexDialog::onColorStatic>(),
                                    on<WM_ERASEBKGND, &WexDialog::onEraseBackground>(),
                                });
    return map;
}

// Esc closes the dialog wherever the focus is, and Ctrl+Tab turns a page.
bool WexDialog::PreTranslateMessage(MSG& message) {
    if (asksForMenu(message)) {
        ::SendMessageW(message.hwnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(message.hwnd), -1);
        return true;
    }
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
        PostMessage(WM_CLOSE);
        return true;
    }
    if (const int step = pageStep(message); step && turnPage(step)) return true;
    if (pressByMnemonic(message)) return true;
    return CSnapDlg::PreTranslateMessage(message);
}

// The page under the focus is turned, or else the first that can be.
bool WexDialog::turnPage(int step) {
    for (const HWND focus : {::GetFocus(), HWND()})
        for (const auto& control : m_controls)
            if (control->turnPage(step, focus)) return true;
    return false;
}

// A button without a text has its mnemonic elsewhere. A caption with the same one comes first.
bool WexDialog::pressByMnemonic(const MSG& message) {
    if (message.message != WM_SYSCHAR) return false;
    const wchar_t typed = static_cast<wchar_t>(message.wParam);
    const wchar_t letter = toLower({&typed, 1}).front();
    for (const auto& control : m_controls) {
        const HWND window = control->wnd().m_hWnd;
        if (!control->hasMnemonic(letter) || !canBeWorked(window) || isInCaption(m_hWnd, letter)) continue;
        ::SendMessageW(window, BM_CLICK, 0, 0);
        return true;
    }
    return false;
}

// All ways to cancel end like OK, and the status then tells that no action ended the dialog.
void WexDialog::OnCancel() { OnOK(); }

// Buttons with the ids that no key can have belong to the dialog's extra control.
bool WexDialog::OnCommand(UINT id, UINT notification) {
    if (CSnapDlg::OnCommand(id, notification)) return true;
    const ExtraControl* extra = extraControlOf(m_name);
    if (!extra || isWalkedId(static_cast<int>(id))) return false;
    auto* control = dynamic_cast<TileControl*>(CWnd::FromHandlePermanent(::GetDlgItem(m_hWnd, extra->id)));
    if (control) control->pressed(static_cast<int>(id));
    return control != nullptr;
}

void WexDialog::onPaint() {
    // The control that had the focus may run Lisp when it loses it, so the state is settled first.
    const int32_t focusId = std::exchange(m_focusId, -1);
    if (focusId >= 0)
        if (const CWnd* control = itemForId(focusId)) control->SetFocus();
    if (isLive()) CSnapDlg::onPaint();
}

void WexDialog::onSize(UINT type, int width, int height) {
    CSnapDlg::onSize(type, width, height);
    layoutControls(width, height);
    if (!m_discovered || m_onSizeAction.IsEmpty()) return;
    const RECT client = GetClientRect();
    setEventValuePoint(client.right, client.bottom);
    callLispAction(m_onSizeAction);
}

// A dialog that was closed out of order stays listed and may run again: its records wait for new controls.
void WexDialog::runEnded() {
    CSnapDlg::runEnded();
    m_discovered = m_hasApplied = false;
    m_focusId = -1;
    m_lastClientRect = m_initialClientRect = {};
    if (m_deferPos) EndDeferWindowPos(std::exchange(m_deferPos, nullptr));
    for (size_t at = 0; at < m_tiles.size(); ++at) m_tiles.at(at)->m_control = nullptr;
    deleteControls();
}

LRESULT WexDialog::onColorStatic(HDC dc, CWnd* control) {
    for (const auto& under : m_controls)
        if (const HBRUSH brush = under->brushUnder(dc, *control)) return reinterpret_cast<LRESULT>(brush);
    return Default();
}

LRESULT WexDialog::onEraseBackground(HDC dc) {
    Default();
    for (const auto& under : m_controls) under->paintUnder(dc, *this);
    return TRUE;
}

// F1 is the Help button's click, for a dialog that has one.
LRESULT WexDialog::onHelp(HELPINFO*) {
    if (CWnd* help = itemForKey(L"help"))
        if (auto* button = dynamic_cast<Pressable*>(help)) button->press();
    return TRUE;
}
