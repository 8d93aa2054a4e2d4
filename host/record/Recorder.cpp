#include "host/record/Recorder.h"

#include "host/documents/Documents.h"
#include "host/drive/GridWindow.h"
#include "host/drive/Menus.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/WindowClass.h"
#include "host/services/Host.h"

namespace {

Recorder* g_recorder = nullptr;

bool isMouse(UINT message) { return message > WM_MOUSEMOVE && message <= WM_MBUTTONDBLCLK; }
bool isPress(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDOWN ||
           message == WM_RBUTTONDBLCLK;
}
bool isKey(UINT message) { return message >= WM_KEYFIRST && message <= WM_KEYLAST; }

bool isPluginDialog(HWND window) { return window && documents().newestDialog() == window; }

}  // namespace

Recorder::Recorder(std::filesystem::path file, std::wstring head)
    : m_journal(std::move(file), std::move(head)),
      m_messages(SetWindowsHookExW(WH_GETMESSAGE, &messageHook, nullptr, GetCurrentThreadId())),
      m_sent(SetWindowsHookExW(WH_CALLWNDPROC, &sentHook, nullptr, GetCurrentThreadId())) {
    g_recorder = this;
}

Recorder::~Recorder() {
    g_recorder = nullptr;
    UnhookWindowsHookEx(m_sent);
    UnhookWindowsHookEx(m_messages);
}

LRESULT CALLBACK Recorder::messageHook(int code, WPARAM removed, LPARAM l) noexcept {
    if (code == HC_ACTION && removed & PM_REMOVE && g_recorder) g_recorder->taken(*reinterpret_cast<MSG*>(l));
    return CallNextHookEx(nullptr, code, removed, l);
}

LRESULT CALLBACK Recorder::sentHook(int code, WPARAM w, LPARAM l) noexcept {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(l);
    if (code == HC_ACTION && g_recorder) g_recorder->told(sent.hwnd, sent.message, sent.wParam);
    return CallNextHookEx(nullptr, code, w, l);
}

void Recorder::taken(const MSG& message) {
    const UINT kind = message.message;
    if (!message.hwnd) return;
    if (kind == WM_MOUSEMOVE) return m_mouse.moved(message);
    if (!isMouse(kind) && !isKey(kind) && kind != WM_MOUSEWHEEL)
        return told(message.hwnd, kind, message.wParam);
    HWND dialog = dialogOf(message.hwnd);
    const HMENU menu = openMenu();
    // A menu takes the input from whatever window, and the list of a combo box need not know whose it is.
    if (menu || hasWindowClass(message.hwnd, L"ComboLBox")) dialog = documents().newestDialog();
    if (!isPluginDialog(dialog)) return;
    m_journal.dialogSeen(dialog);
    if (!m_journal.knows(dialog)) return;
    if (!menu) return takenInput(message, dialog);
    // What the menu of an edit box does shows in its text.
    const HWND owner = menuOwner();
    if (!hasWindowClass(owner, L"Edit") || gridOf(GetParent(owner)))
        m_windows.menuInput(message, menu, dialog);
}

void Recorder::takenInput(const MSG& message, HWND dialog) {
    if (isPress(message.message)) {
        m_keys.endTyping();
        return m_mouse.pressed(message, dialog);
    }
    switch (message.message) {
        case WM_LBUTTONUP:
            return m_mouse.released(message, dialog);
        case WM_MOUSEWHEEL:
            m_keys.endTyping();
            return m_mouse.wheelTurned(message, dialog);
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            m_mouse.keyPressed(dialog);
            return m_keys.keyDown(message, dialog);
        case WM_KEYUP:
            return m_keys.keyUp(message, dialog);
        case WM_CHAR:
            return m_keys.character(message, dialog);
    }
}

// A message that tells what was done, be it posted or sent.
void Recorder::told(HWND window, UINT message, WPARAM w) {
    const bool closes = message == WM_SYSCOMMAND && (w & 0xFFF0) == SC_CLOSE;
    const bool sizes = message == WM_ENTERSIZEMOVE || message == WM_SIZING || message == WM_EXITSIZEMOVE;
    const bool ends = message == WM_COMMAND && HIWORD(w) == BN_CLICKED;
    if ((!closes && !sizes && !ends) || !isSystemDialog(window)) return;
    if (ends) {
        if (!isPluginDialog(window) && !host().alerts().isShowing() &&
            documents().nameOfWindow(window).empty())
            m_windows.answered(window, LOWORD(w));
        return;
    }
    if (!isPluginDialog(window)) return;
    m_journal.dialogSeen(window);
    m_keys.endTyping();
    if (closes)
        m_windows.closed(window);
    else
        m_windows.sized(window, message, w);
}

void Recorder::dialogIdle(HWND dialog) {
    if (isPluginDialog(dialog)) m_journal.dialogSeen(dialog);
    m_keys.update();
}

void Recorder::windowGone(HWND window) {
    m_keys.windowGone(window);
    m_mouse.dropUnfinished(window);
    // A dialog that was ended before its loop ran has taken no input.
    const bool hasRun = m_journal.knows(window) || documents().nameOfWindow(window).empty();
    if (isSystemDialog(window) && hasRun) m_mouse.dialogGone();
    m_journal.dialogGone(window);
}
