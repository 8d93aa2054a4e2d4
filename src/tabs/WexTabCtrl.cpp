#include "src/tabs/WexTabCtrl.h"

#include <algorithm>

#include "src/dialog/EntrySelection.h"
#include "src/platform/mfc/RedrawHold.h"

IMPLEMENT_DYNAMIC(WexTabCtrl, CTabCtrl)

namespace {

constexpr UINT BACKGROUND_ID = 6000;

// Whether what lies behind the control may show through it. It does in group boxes and labels, and in
// controls with children: a list control's header paints its columns only, and leaves the rest of its row.
bool isSeeThrough(const CWnd& control) {
    return GetWindow(control.m_hWnd, GW_CHILD) || control.SendMessage(WM_GETDLGCODE) & DLGC_STATIC;
}

// Edit boxes have a background of their own, also such that can't be edited.
bool hasOwnBackground(const CWnd& control) { return control.SendMessage(WM_GETDLGCODE) & DLGC_HASSETSEL; }

// Nothing is drawn. A control that has the focus still is left to the platform, which moves the focus on.
void setShown(const CWnd& control, bool shown) {
    if (!shown && control.holdsFocus()) return control.ShowWindow(SW_HIDE);
    SetWindowPos(control.m_hWnd, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW |
                     (shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void combine(const UniqueRegion& region, const CWnd& control, int how) {
    const RECT rect = control.rectInParent();
    const UniqueRegion part(CreateRectRgnIndirect(&rect));
    CombineRgn(region.get(), region.get(), part.get(), how);
}

}  // namespace

const MessageMap& WexTabCtrl::messageMap() const {
    static const MessageMap map(
        CTabCtrl::messageMap(),
        {
            onReflectedNotify<static_cast<UINT>(TCN_SELCHANGE), &WexTabCtrl::onSelectionChanged>(),
            on<WM_SIZE, &WexTabCtrl::onSize>(),
            on<WM_THEMECHANGED, &WexTabCtrl::onLookChanged>(),
            on<WM_SYSCOLORCHANGE, &WexTabCtrl::onLookChanged>(),
            on<WM_CTLCOLORSTATIC, &WexTabCtrl::onColorStatic>(),
        });
    return map;
}

void WexTabCtrl::discovered(WexDialog&, CCtrlInfo&) { setUp(); }

void WexTabCtrl::setUp() {
    m_background.CreateEx(0, L"Static", L"", WS_CHILD | WS_VISIBLE, RECT{}, m_hWnd, BACKGROUND_ID);
    placeBackground();
    lower();
}

// --- pages

void WexTabCtrl::addPage(const CString& caption, const std::vector<CWnd*>& members) {
    TCITEMW item = {};
    item.mask = TCIF_TEXT | TCIF_IMAGE | TCIF_PARAM;
    item.pszText = const_cast<wchar_t*>(caption.c_str());
    item.iImage = -1;
    const auto page =
        static_cast<int>(SendMessage(TCM_INSERTITEMW, count(), reinterpret_cast<LPARAM>(&item)));
    m_pages.addPage();
    for (CWnd* member : members) m_pages.add(page, member);
    showPage();
}

void WexTabCtrl::onSelectionChanged(NMHDR* /*header*/) { showPage(); }

void WexTabCtrl::showPage() {
    if (!releaseFocus(m_pages.changeTo(selected()))) return;
    releaseRedraw();
    // Lisp may have added pages.
    const PageChange change = m_pages.changeTo(selected());
    for (const CWnd* member : change.hide)
        if (member->isLive()) setShown(*member, false);
    for (const CWnd* member : change.show)
        if (member->isLive()) setShown(*member, true);
    if (IsWindowVisible(::GetParent(m_hWnd))) redraw(change);
}

// Without this the platform would move the focus from one control to the next as they are hidden, and each
// would report that it lost it. A disabled tab control doesn't take the focus. False: the tab control is
// gone.
bool WexTabCtrl::releaseFocus(const PageChange& change) {
    if (std::any_of(change.hide.begin(), change.hide.end(), [](const CWnd* m) { return m->holdsFocus(); }))
        SetFocus();
    return isLive();
}

// The dialog and the tab control are drawn only where no control of the page covers them, so that nothing
// flickers.
void WexTabCtrl::redraw(const PageChange& change) const {
    const UniqueRegion bare(CreateRectRgn(0, 0, 0, 0));
    combine(bare, *this, RGN_OR);
    for (const CWnd* member : change.hide)
        if (member->isLive()) combine(bare, *member, RGN_OR);
    for (const CWnd* member : change.show)
        if (member->isLive() && !isSeeThrough(*member)) combine(bare, *member, RGN_DIFF);
    const HWND dialog = ::GetParent(m_hWnd);
    RedrawWindow(dialog, nullptr, bare.get(), RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    for (const CWnd* member : change.show)
        if (member->isLive())
            RedrawWindow(member->m_hWnd, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// --- keys

bool WexTabCtrl::turnPage(int step, HWND focus) {
    if (!isLive() || !IsWindowVisible(m_hWnd) || !IsWindowEnabled(m_hWnd) || count() < 2) return false;
    if (focus && focus != m_hWnd && !carries(focus)) return false;
    const bool hadFocus = ::GetFocus() == m_hWnd;
    SendMessage(TCM_SETCURSEL, (selected() + step + count()) % count());
    showPage();
    if (isLive() && !hadFocus && ::GetFocus() == m_hWnd) focusFirst(m_pages.changeTo(selected()).show);
    return true;
}

// The focus goes to the first of the controls in the order of the Tab key.
void WexTabCtrl::focusFirst(const std::vector<CWnd*>& members) const {
    const HWND dialog = ::GetParent(m_hWnd);
    const HWND first = GetNextDlgTabItem(dialog, m_hWnd, FALSE);
    HWND at = first;
    do {
        if (std::any_of(members.begin(), members.end(), [=](const CWnd* m) { return m->m_hWnd == at; })) {
            ::SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(at), TRUE);
            return;
        }
        at = GetNextDlgTabItem(dialog, at, FALSE);
    } while (at && at != first);
}

// --- looks

RECT WexTabCtrl::pageAreaIn(const CWnd& window) const {
    RECT area = GetClientRect();
    SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    MapWindowPoints(m_hWnd, window.m_hWnd, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

// kept: 2 pixels at the left, 4 at the other edges.
void WexTabCtrl::placeBackground() {
    RECT rect = GetClientRect();
    rect.left += 2;
    rect.top += 4;
    rect.right -= 4;
    rect.bottom -= 4;
    m_background.MoveWindow(rect);
}

void WexTabCtrl::onSize(UINT /*type*/, int /*width*/, int /*height*/) {
    Default();
    placeBackground();
}

void WexTabCtrl::onLookChanged() {
    Default();
    m_look.forget();
}

HBRUSH WexTabCtrl::pageBrush() {
    const RECT page = pageAreaIn(*this);
    return m_look.brushOf(*this, {(page.left + page.right) / 2, (page.top + page.bottom) / 2});
}

// The background window covers the captions too, so it is clipped to what is below them.
LRESULT WexTabCtrl::onColorStatic(HDC dc, CWnd* control) {
    const RECT page = pageAreaIn(*control);
    IntersectClipRect(dc, page.left, page.top, page.right, page.bottom);
    return reinterpret_cast<LRESULT>(pageBrush());
}

bool WexTabCtrl::carries(HWND window) const {
    RECT standing, common;
    ::GetWindowRect(window, &standing);
    const RECT own = GetWindowRect();
    return IsWindowVisible(m_hWnd) && IntersectRect(&common, &standing, &own) &&
           EqualRect(&common, &standing);
}

HBRUSH WexTabCtrl::brushUnder(HDC dc, const CWnd& other) {
    if (!isLive() || &other == this || hasOwnBackground(other) || !carries(other.m_hWnd)) return nullptr;
    SetBkMode(dc, TRANSPARENT);
    return pageBrush();
}

void WexTabCtrl::paintUnder(HDC dc, const CWnd& dialog) {
    if (!isLive() || !IsWindowVisible(m_hWnd)) return;
    const RECT page = pageAreaIn(dialog);
    if (const HBRUSH brush = pageBrush()) FillRect(dc, &page, brush);
}

void setTabValue(CWnd& tab, const CString& value, bool /*byKey*/) {
    selectEntry(tab, value, TCM_GETITEMCOUNT, TCM_SETCURSEL, Entries::complete);
}
