#include "src/platform/mfc/CWnd.h"

#include <iterator>
#include <utility>

#include "src/platform/mfc/KeptException.h"
#include "src/platform/mfc/ModuleState.h"
#include "src/platform/mfc/ThemeContext.h"
#include "src/platform/mfc/WindowCreation.h"
#include "src/platform/mfc/WindowTable.h"

IMPLEMENT_DYNAMIC(CWnd, CObject)

namespace {

struct HandledMessage {
    HWND window;
    UINT message;
    WPARAM w;
    LPARAM l;
};

const HandledMessage* g_handledMessage = nullptr;

}  // namespace

LRESULT CALLBACK CWnd::procedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    const HandledMessage handled{window, message, w, l};
    const HandledMessage* outer = std::exchange(g_handledMessage, &handled);
    LRESULT result = 0;
    try {
        CWnd* wrapper = WindowTable::permanent(window);
        result = wrapper ? wrapper->WindowProc(message, w, l)
                         : WindowTable::callOwnProcedure(window, message, w, l);
    } catch (...) {
        keepException();
        // A paint that never ends would come again for ever.
        if (message == WM_PAINT) ValidateRect(window, nullptr);
    }
    g_handledMessage = outer;
    if (message == WM_NCDESTROY) WindowTable::gone(window);
    return result;
}

CWnd* windowOf(WPARAM handle) { return CWnd::FromHandle(reinterpret_cast<HWND>(handle)); }

CWnd::~CWnd() {
    if (m_created)
        DestroyWindow();
    else
        WindowTable::detach(*this);
    for (const auto& kept : m_kept) WindowTable::retire(*kept);
}

CWnd* CWnd::FromHandle(HWND window) {
    if (!window) return nullptr;
    if (CWnd* wrapper = WindowTable::permanent(window)) return wrapper;
    if (CWnd* wrapper = WindowTable::onDemand(window)) return wrapper;
    return WindowTable::makeOnDemand(window);
}

CWnd* CWnd::FromHandlePermanent(HWND window) { return WindowTable::permanent(window); }

bool CWnd::SubclassWindow(HWND window) {
    if (m_hWnd) return m_hWnd == window;
    if (!IsWindow(window) || !WindowTable::attach(window, *this)) return false;
    attached();
    return true;
}

bool CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                    const RECT& rect, HWND parent, UINT id) {
    const ThemeContext themed;
    const WindowCreation creation(*this);
    const HINSTANCE module = AfxGetModuleState()->m_hCurrentInstanceHandle;
    CreateWindowExW(exStyle, className, text, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                    module, nullptr);
    return m_created = m_hWnd != nullptr;
}

bool CWnd::DestroyWindow() {
    if (!m_hWnd || !::DestroyWindow(m_hWnd)) return false;
    WindowTable::retire(*this);
    return true;
}

CWnd* CWnd::GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }

bool CWnd::holdsFocus() const {
    const HWND focus = ::GetFocus();
    return focus && (focus == m_hWnd || IsChild(m_hWnd, focus));
}

const CString& CWnd::className() const {
    if (m_classOf != m_hWnd) {
        wchar_t name[256];
        m_className.assign(name, GetClassNameW(m_hWnd, name, static_cast<int>(std::size(name))));
        m_classOf = m_hWnd;
    }
    return m_className;
}

CString CWnd::GetWindowText() const {
    CString text(::GetWindowTextLengthW(m_hWnd), L'\0');
    text.resize(::GetWindowTextW(m_hWnd, text.data(), static_cast<int>(text.size()) + 1));
    return text;
}

RECT CWnd::GetClientRect() const {
    RECT rect{};
    ::GetClientRect(m_hWnd, &rect);
    return rect;
}

RECT CWnd::GetWindowRect() const {
    RECT rect{};
    ::GetWindowRect(m_hWnd, &rect);
    return rect;
}

RECT CWnd::rectInParent() const {
    RECT rect = GetWindowRect();
    MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

LRESULT CWnd::sendStraight(UINT message, WPARAM w, LPARAM l) const {
    return FromHandlePermanent(m_hWnd) ? WindowTable::callOwnProcedure(m_hWnd, message, w, l)
                                       : SendMessage(message, w, l);
}

void CWnd::MoveWindow(const RECT& rect, bool repaint) const {
    ::MoveWindow(m_hWnd, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, repaint);
}

void CWnd::ModifyStyle(DWORD remove, DWORD add) const {
    SetWindowLongPtrW(m_hWnd, GWL_STYLE, (GetStyle() & ~remove) | add);
}

void CWnd::ModifyStyleEx(DWORD remove, DWORD add) const {
    SetWindowLongPtrW(m_hWnd, GWL_EXSTYLE, (GetExStyle() & ~remove) | add);
    SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

const MessageMap& CWnd::messageMap() const {
    static const MessageMap none;
    return none;
}

LRESULT CWnd::Default() {
    const HandledMessage& handled = *g_handledMessage;
    return WindowTable::callOwnProcedure(handled.window, handled.message, handled.w, handled.l);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM w, LPARAM l) {
    return WindowTable::callOwnProcedure(m_hWnd, message, w, l);
}

// Gives a notification to the control that it came from. False where the control doesn't take it.
bool CWnd::reflect(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
    using Kind = MessageEntry::Kind;
    Kind kind = Kind::reflectedMessage;
    UINT code = message;
    HWND control = reinterpret_cast<HWND>(l);
    if (message == WM_COMMAND) {
        kind = Kind::reflectedCommand;
        code = HIWORD(w);
    } else if (message == WM_NOTIFY) {
        const auto* header = reinterpret_cast<const NMHDR*>(l);
        kind = Kind::reflectedNotify;
        code = header->code;
        control = header->hwndFrom;
    } else if (message == WM_DRAWITEM) {
        control = reinterpret_cast<const DRAWITEMSTRUCT*>(l)->hwndItem;
    }
    CWnd* wrapper = control ? FromHandlePermanent(control) : nullptr;
    if (!wrapper || wrapper == this) return false;
    const MessageEntry::Call call = wrapper->messageMap().find(kind, code);
    if (!call) return false;
    result = call(*wrapper, w, l);
    return true;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM w, LPARAM l) {
    LRESULT result = 0;
    switch (message) {
        case WM_COMMAND: {
            if (reflect(message, w, l, result)) return result;
            if (OnCommand(LOWORD(w), HIWORD(w))) return 0;
            break;
        }
        case WM_NOTIFY:
        case WM_DRAWITEM:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            if (reflect(message, w, l, result)) return result;
            break;
    }
    if (const auto call = messageMap().find(MessageEntry::Kind::message, message)) return call(*this, w, l);
    return DefWindowProc(message, w, l);
}
