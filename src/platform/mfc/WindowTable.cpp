#include "src/platform/mfc/WindowTable.h"

#include <memory>
#include <unordered_map>
#include <utility>

#include "src/platform/mfc/CWnd.h"

namespace {

struct Attachment {
    // Null once the wrapper is detached. The entry stays as long as a later subclass still calls our
    // procedure.
    CWnd* wrapper = nullptr;
    WNDPROC ownProcedure = nullptr;
    // Whether the procedure is a plain function pointer. Calling it directly costs a fraction of a call
    // through the platform.
    bool isCode = false;
};

struct Table {
    std::unordered_map<HWND, Attachment> attached;
    std::unordered_map<HWND, CWnd*> onDemand;
    // What was asked for last, since several questions follow each other for every message.
    HWND lastAsked = nullptr;
    Attachment* lastFound = nullptr;
};

Table& table() {
    static auto* made = new Table;  // outlives all statics that hold windows
    return *made;
}

Attachment* attachmentOf(HWND window) {
    Table& all = table();
    if (window != all.lastAsked) {
        const auto at = all.attached.find(window);
        all.lastFound = at == all.attached.end() ? nullptr : &at->second;
        all.lastAsked = window;
    }
    return all.lastFound;
}

Attachment& addAttachment(HWND window) {
    table().lastAsked = nullptr, table().lastFound = nullptr;
    return table().attached[window];
}

void removeAttachment(HWND window) {
    table().lastAsked = nullptr, table().lastFound = nullptr;
    table().attached.erase(window);
}

// What stands for a procedure may be a handle that only the platform can call.
bool isCode(WNDPROC procedure) {
    HMODULE module;
    return GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(procedure), &module);
}

WNDPROC procedureOf(HWND window) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
}

WNDPROC setProcedure(HWND window, WNDPROC procedure) {
    return reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

CWnd* keeperOf(HWND window) {
    CWnd* keeper = nullptr;
    for (HWND at = window; at; at = GetAncestor(at, GA_PARENT))
        if (CWnd* wrapper = WindowTable::permanent(at)) keeper = wrapper;
    return keeper;
}

}  // namespace

CWnd* WindowTable::permanent(HWND window) {
    const Attachment* attachment = attachmentOf(window);
    return attachment ? attachment->wrapper : nullptr;
}

CWnd* WindowTable::onDemand(HWND window) {
    const auto at = table().onDemand.find(window);
    return at == table().onDemand.end() ? nullptr : at->second;
}

CWnd* WindowTable::makeOnDemand(HWND window) {
    auto made = std::make_unique<CWnd>();
    CWnd* wrapper = made.get();
    wrapper->m_hWnd = window;
    if (CWnd* keeper = keeperOf(window))
        keeper->m_kept.push_back(std::move(made));
    else
        made.release();
    return table().onDemand[window] = wrapper;
}

bool WindowTable::attach(HWND window, CWnd& wrapper) {
    Attachment& attachment = addAttachment(window);
    if (attachment.wrapper) return false;
    if (!attachment.ownProcedure) {
        attachment.ownProcedure = setProcedure(window, &CWnd::procedure);
        attachment.isCode = isCode(attachment.ownProcedure);
    }
    if (!attachment.ownProcedure) {
        removeAttachment(window);
        return false;
    }
    if (CWnd* other = onDemand(window)) retire(*other);
    attachment.wrapper = &wrapper;
    wrapper.m_hWnd = window;
    return true;
}

void WindowTable::detach(CWnd& wrapper) {
    const HWND window = std::exchange(wrapper.m_hWnd, nullptr);
    Attachment* attachment = attachmentOf(window);
    if (!attachment || attachment->wrapper != &wrapper) return;
    if (procedureOf(window) == &CWnd::procedure) {
        setProcedure(window, attachment->ownProcedure);
        removeAttachment(window);
    } else {
        // A later subclass still calls our procedure, which only passes messages on from now.
        attachment->wrapper = nullptr;
    }
}

void WindowTable::retire(CWnd& wrapper) {
    const HWND window = std::exchange(wrapper.m_hWnd, nullptr);
    if (onDemand(window) == &wrapper) table().onDemand.erase(window);
}

void WindowTable::gone(HWND window) {
    if (CWnd* wrapper = permanent(window)) {
        for (const auto& kept : wrapper->m_kept) retire(*kept);
        wrapper->m_created = false;
        detach(*wrapper);
    }
    removeAttachment(window);
}

LRESULT WindowTable::callOwnProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    const Attachment* attachment = attachmentOf(window);
    if (!attachment) return ::DefWindowProcW(window, message, w, l);
    if (attachment->isCode) return attachment->ownProcedure(window, message, w, l);
    return CallWindowProcW(attachment->ownProcedure, window, message, w, l);
}
