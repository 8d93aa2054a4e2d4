#include "src/platform/mfc/CutTextTip.h"

#include <cstring>

namespace {

constexpr int MOST_CHARS = 1024;

HWND tipWindow(const CWnd& tree) { return reinterpret_cast<HWND>(tree.SendMessage(TVM_GETTOOLTIPS)); }

POINT pointOf(LPARAM l) { return {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))}; }

// The item whose text is there; null for none.
HTREEITEM textAt(const CWnd& tree, POINT at) {
    TVHITTESTINFO hit{at, 0, nullptr};
    tree.SendMessage(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.flags & TVHT_ONITEMLABEL ? hit.hItem : nullptr;
}

// In client pixels. The message takes the item in the place of its answer.
RECT textRect(const CWnd& tree, HTREEITEM item) {
    RECT rect{};
    std::memcpy(&rect, &item, sizeof item);
    if (!tree.SendMessage(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect))) return {};
    return rect;
}

bool isCut(const CWnd& tree, const RECT& text) {
    const RECT client = tree.GetClientRect();
    return text.left < client.left || text.right > client.right;
}

CString textOf(const CWnd& tree, HTREEITEM item) {
    CString text(MOST_CHARS, L'\0');
    TVITEMW asked{};
    asked.mask = TVIF_TEXT | TVIF_HANDLE;
    asked.hItem = item;
    asked.pszText = text.data();
    asked.cchTextMax = MOST_CHARS;
    tree.SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return text.c_str();
}

// The tip doesn't take the pointer, which would leave the tree.
TTTOOLINFOW toolOf(const CWnd& tree) {
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    tool.hwnd = tree.m_hWnd;
    tool.uId = 1;
    return tool;
}

}  // namespace

void CutTextTip::see(const CWnd& tree, UINT message, LPARAM l) {
    switch (message) {
        case WM_MOUSEMOVE:
            if (m_shown && textAt(tree, pointOf(l)) == m_shown) break;
            hide(tree);
            waitForRest(tree);
            break;
        case WM_MOUSEHOVER:
            show(tree, pointOf(l));
            break;
        case WM_MOUSELEAVE:
        case WM_MOUSEWHEEL:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_KEYDOWN:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_SIZE:
            hide(tree);
            break;
    }
}

void CutTextTip::waitForRest(const CWnd& tree) const {
    TRACKMOUSEEVENT request = {sizeof request, TME_HOVER | TME_LEAVE, tree.m_hWnd, HOVER_DEFAULT};
    TrackMouseEvent(&request);
}

void CutTextTip::show(const CWnd& tree, POINT at) {
    const HWND window = tipWindow(tree);
    const HTREEITEM item = textAt(tree, at);
    if (!window || !item || item == m_shown) return;
    hide(tree);
    RECT place = textRect(tree, item);
    if (!isCut(tree, place)) return;
    TTTOOLINFOW tool = toolOf(tree);
    const auto send = [&](UINT message, WPARAM w) {
        return ::SendMessageW(window, message, w, reinterpret_cast<LPARAM>(&tool));
    };
    if (!send(TTM_GETTOOLINFOW, 0)) {
        if (::SendMessageW(window, TTM_GETTOOLCOUNT, 0, 0)) return;  // the platform's own
        SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | TTS_NOPREFIX);
        ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(tree.GetFont()), FALSE);
        send(TTM_ADDTOOLW, 0);
    }
    CString text = textOf(tree, item);
    tool = toolOf(tree);
    tool.lpszText = text.data();
    send(TTM_UPDATETIPTEXTW, 0);
    MapWindowPoints(tree.m_hWnd, nullptr, reinterpret_cast<POINT*>(&place), 2);
    ::SendMessageW(window, TTM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&place));
    ::SendMessageW(window, TTM_TRACKPOSITION, 0, MAKELPARAM(place.left, place.top));
    send(TTM_TRACKACTIVATE, TRUE);
    m_shown = item;
}

void CutTextTip::hide(const CWnd& tree) {
    if (!m_shown) return;
    m_shown = nullptr;
    TTTOOLINFOW tool = toolOf(tree);
    ::SendMessageW(tipWindow(tree), TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
}
