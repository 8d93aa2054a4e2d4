#include "src/platform/mfc/CDialog.h"

#include <cstring>
#include <utility>
#include <vector>

#include "src/platform/mfc/CWinApp.h"
#include "src/platform/mfc/KeptException.h"
#include "src/platform/mfc/ModuleState.h"
#include "src/platform/mfc/RedrawHold.h"
#include "src/platform/mfc/ThemeContext.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

namespace {

// Undocumented: the platform posts it to make the caret blink.
constexpr UINT WM_SYSTIMER = 0x0118;

// The dialog that is being created.
CDialog* g_creating = nullptr;

// Joins the window to its dialog at the first message: the font's, sent before there are controls, or without
// one what a control sends or WM_INITDIALOG. A hook on the creation would cost as much as a control. Later
// messages come here when the dialog has no use for them.
INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    CDialog* const dialog = std::exchange(g_creating, nullptr);
    if (!dialog) return FALSE;
    dialog->SubclassWindow(window);
    if (message == WM_SETFONT) return FALSE;
    const LRESULT result = SendMessageW(window, message, w, l);
    SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
    return message == WM_INITDIALOG ? result : TRUE;
}

// A copy of the template, as bytes that can be changed.
std::vector<BYTE> loadTemplate(HMODULE module, UINT id) {
    if (!module) return {};
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!found) return {};
    const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(module, found)));
    return bytes ? std::vector<BYTE>(bytes, bytes + SizeofResource(module, found)) : std::vector<BYTE>();
}

// A modal dialog shows itself when it is ready, whatever its template says.
void clearVisible(std::vector<BYTE>& bytes) {
    // An extended template begins with version 1 and signature 0xFFFF, and has its style behind the help id
    // and the extended style; a plain one begins with it.
    const bool extended =
        bytes.size() >= 16 && bytes[0] == 1 && bytes[1] == 0 && bytes[2] == 0xFF && bytes[3] == 0xFF;
    const size_t at = extended ? 12 : 0;
    if (bytes.size() < at + sizeof(DWORD)) return;
    DWORD style;
    std::memcpy(&style, &bytes[at], sizeof style);
    style &= ~static_cast<DWORD>(WS_VISIBLE);
    std::memcpy(&bytes[at], &style, sizeof style);
}

// Who watches for idle loops of nested dialogs and message boxes stands at the end of the chain of owners. It
// is told at once: passed on from owner to owner the message would nest as deep as the dialogs do, and the
// platform sets a limit to that.
HWND lastOwner(HWND window) {
    while (const HWND owner = GetWindow(window, GW_OWNER)) window = owner;
    return window;
}

// The owner takes no input while the object lives.
class DisabledOwner {
  public:
    explicit DisabledOwner(HWND owner) : m_owner(owner && IsWindowEnabled(owner) ? owner : nullptr) {
        if (m_owner) EnableWindow(m_owner, FALSE);
    }
    ~DisabledOwner() { enable(); }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    void enable() {
        if (const HWND owner = std::exchange(m_owner, nullptr)) EnableWindow(owner, TRUE);
    }

  private:
    HWND m_owner;
};

}  // namespace

HWND CDialog::owner() const {
    HWND window = m_parent && m_parent->isLive() ? m_parent->m_hWnd : AfxGetMainWindow();
    return window ? GetAncestor(window, GA_ROOT) : nullptr;
}

bool CDialog::create(HWND owner, First first) {
    const HMODULE module = m_templateModule
                               ? m_templateModule
                               : AfxFindResourceHandle(MAKEINTRESOURCEW(m_templateId), RT_DIALOG);
    std::vector<BYTE> bytes = loadTemplate(module, m_templateId);
    if (bytes.empty()) return false;
    if (first == First::hidden) clearVisible(bytes);
    const ThemeContext themed;
    g_creating = this;
    CreateDialogIndirectParamW(module, reinterpret_cast<const DLGTEMPLATE*>(bytes.data()), owner, &dialogProc,
                               0);
    g_creating = nullptr;
    return m_created = m_hWnd != nullptr;
}

bool CDialog::Create() {
    const bool created = create(owner(), First::asTemplate);
    raiseKeptException();
    return created;
}

int CDialog::DoModal() {
    if (m_hWnd || isRunning()) return -1;
    const HWND owner = this->owner();
    DisabledOwner disabled(owner);
    // Taking the window down may still run handlers, to which the dialog is running.
    struct Running {
        bool& flag;
        ~Running() { flag = false; }
    } const running{m_running = true};
    m_end.begin();
    m_wasActive = m_shown = m_toldIdle = false;
    try {
        if (create(owner, First::hidden)) runLoop(owner);
    } catch (...) {
        keepException();
    }
    m_end.leave();
    if (m_hWnd) {
        m_wasActive = m_wasActive || GetActiveWindow() == m_hWnd;
        ::ShowWindow(m_hWnd, SW_HIDE);
    }
    // Before the window goes, or the activation would go to some other window.
    disabled.enable();
    if (owner && m_wasActive) {
        SetActiveWindow(owner);
        // An owner that was active while it was disabled has lost the focus.
        if (!GetFocus()) ::SetFocus(owner);
    }
    DestroyWindow();
    releaseRedraw();  // its controls are gone, and their handles may come again
    runEnded();
    raiseKeptException();
    return m_end.result();
}

void CDialog::runLoop(HWND owner) {
    while (m_end.goesOn() && isLive() && !hasKeptException()) {
        MSG message{};
        releaseRedraw();
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (idle(owner)) continue;
            GetMessageW(&message, nullptr, 0, 0);
        }
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        // The caret's blinking is no activity.
        m_toldIdle = m_toldIdle && message.message == WM_SYSTIMER;
        if (preTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// What is left to do when no message waits. False: nothing.
bool CDialog::idle(HWND owner) {
    if (!std::exchange(m_shown, true)) {
        ::ShowWindow(m_hWnd, SW_SHOWNORMAL);
        UpdateWindow(m_hWnd);
        return true;
    }
    if (std::exchange(m_toldIdle, true)) return false;
    ::SendMessageW(lastOwner(owner ? owner : m_hWnd), WM_ENTERIDLE, MSGF_DIALOGBOX,
                   reinterpret_cast<LPARAM>(m_hWnd));
    return true;
}

// Asks the windows from the message's own up to this dialog.
bool CDialog::preTranslate(MSG& message) {
    for (HWND at = message.hwnd; at; at = GetAncestor(at, GA_PARENT)) {
        CWnd* wrapper = CWnd::FromHandlePermanent(at);
        if (wrapper && wrapper->PreTranslateMessage(message)) return true;
        if (at == m_hWnd) return false;
    }
    return false;
}

bool CDialog::PreTranslateMessage(MSG& message) { return m_hWnd && IsDialogMessageW(m_hWnd, &message); }

void CDialog::EndDialog(int result) {
    if (!m_hWnd || !m_end.isOpen()) return;
    m_end.end(result);
    m_wasActive = m_wasActive || GetActiveWindow() == m_hWnd;
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const bool ownerDisabled = owner && !IsWindowEnabled(owner);
    ::EndDialog(m_hWnd, result);
    // The platform may have enabled the owner, but the handler that ends the dialog is still at work.
    if (ownerDisabled) ::EnableWindow(owner, FALSE);
}

bool CDialog::UpdateData(bool save) {
    CDataExchange exchange{save};
    DoDataExchange(exchange);
    return true;
}

bool CDialog::OnInitDialog() {
    UpdateData(false);
    return true;
}

void CDialog::OnOK() {
    UpdateData(true);
    EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

bool CDialog::OnCommand(UINT id, UINT notification) {
    if (notification != BN_CLICKED) return false;
    if (id == IDOK) OnOK();
    if (id == IDCANCEL) OnCancel();
    return id == IDOK || id == IDCANCEL;
}

LRESULT CDialog::WindowProc(UINT message, WPARAM w, LPARAM l) {
    if (message == WM_INITDIALOG) return OnInitDialog();
    if (message == redrawReleaseMessage()) {
        releaseRedraw();
        return 0;
    }
    // From a dialog of the platform's own, which tells its owner.
    if (message == WM_ENTERIDLE && w == MSGF_DIALOGBOX)
        if (const HWND last = lastOwner(m_hWnd); last != m_hWnd) return ::SendMessageW(last, message, w, l);
    return CWnd::WindowProc(message, w, l);
}
