#include "src/platform/mfc/CDialog.h"

#include <cstring>
#include <utility>

#include "src/platform/mfc/CWinApp.h"
#include "src/platform/mfc/ModuleState.h"
#include "src/platform/mfc/ThemeContext.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

namespace {

INT_PTR CALLBACK unusedDialogProc(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

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
        if (m_owner) EnableWindow(m_owner, TRUE);
    }

  private:
    HWND m_owner;
};

}  // namespace

void DDX_Control(CDataExchange& exchange, int id, CWnd& wrapper) {
    if (!wrapper.m_hWnd) wrapper.SubclassDlgItem(id, exchange.m_pDlgWnd);
}

HWND CDialog::owner() const {
    HWND window = m_parent && m_parent->isLive() ? m_parent->m_hWnd : AfxGetMainWindow();
    return window ? GetAncestor(window, GA_ROOT) : nullptr;
}

bool CDialog::create(HWND owner, bool hidden) {
    const HMODULE module = m_templateModule
                               ? m_templateModule
                               : AfxFindResourceHandle(MAKEINTRESOURCEW(m_templateId), RT_DIALOG);
    std::vector<BYTE> bytes = loadTemplate(module, m_templateId);
    if (bytes.empty()) return false;
    if (hidden) clearVisible(bytes);
    const ThemeContext themed;
    const WindowCreation creation(*this);
    CreateDialogIndirectParamW(module, reinterpret_cast<const DLGTEMPLATE*>(bytes.data()), owner,
                               &unusedDialogProc, 0);
    return m_hWnd != nullptr;
}

bool CDialog::Create() { return create(owner(), false); }

int CDialog::DoModal() {
    m_result = -1;
    m_ended = false;
    const HWND owner = this->owner();
    {
        DisabledOwner disabled(owner);
        m_running = true;
        if (create(owner, true)) runLoop(owner);
        m_running = false;
        if (m_hWnd) {
            const bool active = GetActiveWindow() == m_hWnd;
            ::ShowWindow(m_hWnd, SW_HIDE);
            // Before the window goes, or the activation would go to some other window.
            disabled.enable();
            if (owner && active) SetActiveWindow(owner);
            DestroyWindow();
        }
    }
    if (const std::exception_ptr kept = takeKeptException()) std::rethrow_exception(kept);
    return m_result;
}

void CDialog::runLoop(HWND owner) {
    bool shown = false;
    bool toldIdle = false;
    const auto goesOn = [this] { return !m_ended && isLive() && !hasKeptException(); };
    while (goesOn()) {
        MSG message;
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!std::exchange(shown, true)) {
                ::ShowWindow(m_hWnd, SW_SHOWNORMAL);
                UpdateWindow(m_hWnd);
                continue;
            }
            if (!std::exchange(toldIdle, true)) {
                ::SendMessageW(owner ? owner : m_hWnd, WM_ENTERIDLE, MSGF_DIALOGBOX,
                               reinterpret_cast<LPARAM>(m_hWnd));
                continue;
            }
        }
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            m_result = -1;
            return;
        }
        toldIdle = false;
        if (preTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
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
    if (!m_hWnd) return;
    m_result = result;
    m_ended = true;
    ::EndDialog(m_hWnd, result);
}

bool CDialog::UpdateData(bool save) {
    CDataExchange exchange{this, save};
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
    return CWnd::WindowProc(message, w, l);
}
