#include "src/platform/mfc/WindowTable.h"

#include <memory>
#include <unordered_map>
#include <utility>

#include "src/platform/mfc/CWnd.h"

namespace {

struct Attachment {
    CWnd* wrapper = nullptr;  // null: let go of, while somebody else's procedure still leads to ours
    WNDPROC ownProcedure = nullptr;
};

struct Table {
    std::unordered_map<HWND, Attachment> attached;
    std::unordered_map<HWND, CWnd*> onDemand;
};

Table& table() {
    static auto* made = new Table;  // outlives all statics that hold windows
    return *made;
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
    const auto at = table().attached.find(window);
    return at == table().attached.end() ? nullptr : at->second.wrapper;
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
    Attachment& attachment = table().attached[window];
    if (attachment.wrapper) return false;
    if (!attachment.ownProcedure) attachment.ownProcedure = setProcedure(window, &CWnd::procedure);
    if (!attachment.ownProcedure) {
        table().attached.erase(window);
        return false;
    }
    if (CWnd* other = onDemand(window)) retire(*other);
    attachment.wrapper = &wrapper;
    wrapper.m_hWnd = window;
    return true;
}

void WindowTable::detach(CWnd& wrapper) {
    const HWND window = std::exchange(wrapper.m_hWnd, nullptr);
    const auto at = table().attached.find(window);
    if (at == table().attached.end() || at->second.wrapper != &wrapper) return;
    if (procedureOf(window) == &CWnd::procedure) {
        setProcedure(window, at->second.ownProcedure);
        table().attached.erase(at);
    } else {
        // Whoever put a procedure over ours goes on calling ours; it only leads on from now.
        at->second.wrapper = nullptr;
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
    table().attached.erase(window);
}

WNDPROC WindowTable::ownProcedure(HWND window) {
    const auto at = table().attached.find(window);
    return at == table().attached.end() ? &::DefWindowProcW : at->second.ownProcedure;
}
