#include "src/platform/mfc/CWnd.h"

#include <exception>
#include <unordered_map>
#include <utility>

#include "src/platform/mfc/ModuleState.h"

IMPLEMENT_DYNAMIC(CWnd, CObject)

namespace {

struct WindowEntry {
    CWnd* wrapper = nullptr;
    WNDPROC ownProcedure = nullptr;  // what the window did before
};

struct HandledMessage {
    HWND window;
    UINT message;
    WPARAM w;
    LPARAM l;
};

std::exception_ptr g_keptException;
CWnd* g_windowBeingCreated = nullptr;
const HandledMessage* g_handledMessage = nullptr;

}  // namespace

LRESULT CALLBACK wexWindowProc(HWND window, UINT message, WPARAM w, LPARAM l);

// The windows that have a wrapper.
struct WindowTable {
    static std::unordered_map<HWND, WindowEntry>& entries() {
        static auto* table =
            new std::unordered_map<HWND, WindowEntry>;  // outlives all statics that hold windows
        return *table;
    }

    static WindowEntry* find(HWND window) {
        const auto at = entries().find(window);
        return at == entries().end() ? nullptr : &at->second;
    }

    static void attach(HWND window, CWnd& wrapper) {
        WindowEntry& entry = entries()[window];
        if (entry.wrapper) retire(*entry.wrapper);
        if (!entry.ownProcedure) {
            const auto procedure = reinterpret_cast<LONG_PTR>(&wexWindowProc);
            entry.ownProcedure =
                reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, procedure));
        }
        entry.wrapper = &wrapper;
        wrapper.m_hWnd = window;
    }

    // The window goes back to its own procedure.
    static void detach(HWND window) {
        const auto at = entries().find(window);
        if (at == entries().end()) return;
        const auto own = reinterpret_cast<LONG_PTR>(at->second.ownProcedure);
        if (own && GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&wexWindowProc))
            SetWindowLongPtrW(window, GWLP_WNDPROC, own);
        entries().erase(at);
    }

    // An on-demand wrapper that is done is kept by the nearest permanent wrapper above its window; a
    // permanent one is its owner's.
    static void retire(CWnd& wrapper) {
        const HWND window = std::exchange(wrapper.m_hWnd, nullptr);
        if (!wrapper.m_onDemand) return;
        for (HWND above = GetAncestor(window, GA_PARENT); above; above = GetAncestor(above, GA_PARENT)) {
            CWnd* keeper = CWnd::FromHandlePermanent(above);
            if (!keeper) continue;
            keeper->m_retired.emplace_back(&wrapper);
            return;
        }
    }
};

LRESULT CALLBACK wexWindowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
    const WindowEntry* entry = WindowTable::find(window);
    if (!entry) return DefWindowProcW(window, message, w, l);
    const WNDPROC own = entry->ownProcedure;
    const HandledMessage* outer = g_handledMessage;
    const HandledMessage handled{window, message, w, l};
    g_handledMessage = &handled;
    LRESULT result = 0;
    try {
        result = entry->wrapper ? entry->wrapper->WindowProc(message, w, l)
                                : CallWindowProcW(own, window, message, w, l);
    } catch (...) {
        // The first one tells what went wrong.
        if (!g_keptException) g_keptException = std::current_exception();
    }
    g_handledMessage = outer;
    if (message == WM_NCDESTROY) {
        if (const WindowEntry* last = WindowTable::find(window)) {
            CWnd* wrapper = last->wrapper;
            WindowTable::detach(window);
            if (wrapper) WindowTable::retire(*wrapper);
        }
    }
    return result;
}

std::exception_ptr takeKeptException() { return std::exchange(g_keptException, nullptr); }
bool hasKeptException() { return g_keptException != nullptr; }

CWnd* windowOf(WPARAM handle) { return CWnd::FromHandle(reinterpret_cast<HWND>(handle)); }

CWnd::~CWnd() {
    if (!m_hWnd) return;
    if (m_created)
        DestroyWindow();
    else
        UnsubclassWindow();
}

CWnd* CWnd::FromHandle(HWND window) {
    if (!window) return nullptr;
    if (const WindowEntry* entry = WindowTable::find(window); entry && entry->wrapper) return entry->wrapper;
    auto* wrapper = new CWnd;  // given to its keeper when the window goes
    wrapper->m_onDemand = true;
    WindowTable::attach(window, *wrapper);
    return wrapper;
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
    const WindowEntry* entry = WindowTable::find(window);
    return entry && entry->wrapper && !entry->wrapper->m_onDemand ? entry->wrapper : nullptr;
}

bool CWnd::SubclassWindow(HWND window) {
    if (m_hWnd) return m_hWnd == window;
    if (!IsWindow(window)) return false;
    WindowTable::attach(window, *this);
    return true;
}

bool CWnd::SubclassDlgItem(int id, CWnd* parent) { return SubclassWindow(::GetDlgItem(parent->m_hWnd, id)); }

HWND CWnd::UnsubclassWindow() {
    const HWND window = std::exchange(m_hWnd, nullptr);
    WindowTable::detach(window);
    return window;
}

WindowCreation::WindowCreation(CWnd& wrapper) {
    g_windowBeingCreated = &wrapper;
    const HOOKPROC attach = [](int code, WPARAM w, LPARAM l) -> LRESULT {
        if (code == HCBT_CREATEWND && g_windowBeingCreated) {
            CWnd* wrapper = std::exchange(g_windowBeingCreated, nullptr);
            wrapper->SubclassWindow(reinterpret_cast<HWND>(w));
        }
        return CallNextHookEx(nullptr, code, w, l);
    };
    m_hook = SetWindowsHookExW(WH_CBT, attach, nullptr, GetCurrentThreadId());
}

WindowCreation::~WindowCreation() {
    UnhookWindowsHookEx(m_hook);
    g_windowBeingCreated = nullptr;
}

bool CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                    const RECT& rect, HWND parent, UINT id) {
    const WindowCreation creation(*this);
    const HINSTANCE module = AfxGetModuleState()->m_hCurrentInstanceHandle;
    CreateWindowExW(exStyle, className, text, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                    module, nullptr);
    m_created = m_hWnd != nullptr;
    return m_created;
}

bool CWnd::DestroyWindow() { return m_hWnd && ::DestroyWindow(m_hWnd); }

CWnd* CWnd::GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }

CString CWnd::className() const {
    wchar_t name[256];
    return CString(name, GetClassNameW(m_hWnd, name, static_cast<int>(std::size(name))));
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
    return CallWindowProcW(
        WindowTable::find(handled.window) ? WindowTable::find(handled.window)->ownProcedure : &::DefWindowProcW,
        handled.window, handled.message, handled.w, handled.l);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM w, LPARAM l) {
    const WindowEntry* entry = WindowTable::find(m_hWnd);
    if (!entry) return ::DefWindowProcW(m_hWnd, message, w, l);
    return CallWindowProcW(entry->ownProcedure, m_hWnd, message, w, l);
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
            const UINT id = LOWORD(w);
            if (const auto call = messageMap().find(MessageEntry::Kind::command, id))
                return call(*this, w, l);
            if (OnCommand(id, HIWORD(w))) return 0;
            break;
        }
        case WM_NOTIFY:
        case WM_DRAWITEM:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CTLCOLORSTATIC:
            if (reflect(message, w, l, result)) return result;
            break;
    }
    if (const auto call = messageMap().find(MessageEntry::Kind::message, message)) return call(*this, w, l);
    return DefWindowProc(message, w, l);
}
