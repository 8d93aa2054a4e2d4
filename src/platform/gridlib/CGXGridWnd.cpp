#include "src/platform/gridlib/CGXGridWnd.h"

#include <algorithm>

#include "src/platform/gridlib/GridMessages.h"

IMPLEMENT_DYNAMIC(CGXGridWnd, CWnd)

namespace {

// From so many changed places on, all of the window is painted anew: each costs a call of the platform.
constexpr size_t MOST_PENDING = 8;

bool isWithin(const RECT& inner, const RECT& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

}  // namespace

const MessageMap& CGXGridWnd::messageMap() const {
    static const MessageMap map(CWnd::messageMap(),
                                {
                                    on<WM_PAINT, &CGXGridWnd::paint>(),
                                    on<WM_ERASEBKGND, &CGXGridWnd::eraseBackground>(),
                                    on<WM_SIZE, &CGXGridWnd::onSize>(),
                                    on<WM_ENABLE, &CGXGridWnd::onEnable>(),
                                    on<WM_SETFOCUS, &CGXGridWnd::onFocus>(),
                                    on<WM_KILLFOCUS, &CGXGridWnd::onFocusLost>(),
                                    onRaw<WM_SETFONT, &CGXGridWnd::onSetFont>(),
                                    onRaw<WM_GETFONT, &CGXGridWnd::onGetFont>(),
                                    on<WM_THEMECHANGED, &CGXGridWnd::refreshLook>(),
                                    on<WM_SYSCOLORCHANGE, &CGXGridWnd::refreshLook>(),
                                    on<WM_SETTINGCHANGE, &CGXGridWnd::refreshLook>(),
                                    on<WM_VSCROLL, &CGXGridWnd::onVScroll>(),
                                    on<WM_HSCROLL, &CGXGridWnd::onHScroll>(),
                                    on<WM_MOUSEWHEEL, &CGXGridWnd::onWheel>(),
                                    onRaw<WM_MOUSEHWHEEL, &CGXGridWnd::onWheelAcross>(),
                                    onRaw<WM_GRID_SETTLE, &CGXGridWnd::onSettle>(),
                                    on<WM_LBUTTONDOWN, &CGXGridWnd::OnLButtonDown>(),
                                    on<WM_LBUTTONUP, &CGXGridWnd::onLButtonUp>(),
                                    on<WM_LBUTTONDBLCLK, &CGXGridWnd::onLButtonDblClk>(),
                                    on<WM_MOUSEMOVE, &CGXGridWnd::onMouseMove>(),
                                    on<WM_CAPTURECHANGED, &CGXGridWnd::onCaptureChanged>(),
                                    on<WM_TIMER, &CGXGridWnd::onTimer>(),
                                    on<WM_SETCURSOR, &CGXGridWnd::onSetCursor>(),
                                    onRaw<WM_GETDLGCODE, &CGXGridWnd::onGetDlgCode>(),
                                    onRaw<WM_KEYDOWN, &CGXGridWnd::onKeyDown>(),
                                    onRaw<WM_SYSKEYDOWN, &CGXGridWnd::onSysKeyDown>(),
                                    on<WM_CHAR, &CGXGridWnd::onChar>(),
                                    onRaw<WM_GETOBJECT, &CGXGridWnd::onGetObject>(),
                                    onRaw<WM_GRID_SELECT, &CGXGridWnd::onSelect>(),
                                    onRaw<WM_GRID_CELL_AT, &CGXGridWnd::onCellAt>(),
                                });
    return map;
}

LRESULT CGXGridWnd::WindowProc(UINT message, WPARAM w, LPARAM l) {
    static const UINT query = RegisterWindowMessageW(GRID_QUERY_MESSAGE);
    if (message == query) return answer(static_cast<GridQuestion>(w), reinterpret_cast<void*>(l));
    return CWnd::WindowProc(message, w, l);
}

void CGXGridWnd::Initialize() {
    m_font = reinterpret_cast<HFONT>(::SendMessageW(::GetParent(m_hWnd), WM_GETFONT, 0, 0));
    refreshLook();
    const RECT client = GetClientRect();
    onSize(SIZE_RESTORED, client.right, client.bottom);
    OnGridInitialUpdate();
}

GridScene CGXGridWnd::scene() const {
    const HWND focus = ::GetFocus();
    return {*this,
            m_rows,
            m_cols,
            m_look,
            IsWindowEnabled(m_hWnd) != FALSE,
            focus == m_hWnd || (focus && IsChild(m_hWnd, focus)),
            m_refused,
            CGXRange(0, 0, std::max(m_rows.lastInView(), m_rows.first() - 1),
                     std::max(m_cols.lastInView(), m_cols.first() - 1))};
}

void CGXGridWnd::refreshLook() {
    m_look.refresh(m_hWnd, m_font);
    m_rows.setScale(m_look.dotsPerInch());
    m_cols.setScale(m_look.dotsPerInch());
    m_editor.setFont(m_look.font());
    invalidateAll();
    settleLater();
}

void CGXGridWnd::invalidate(const RECT& rect) {
    if (m_allPending || rect.left >= rect.right || rect.top >= rect.bottom) return;
    for (const RECT& pending : m_pending)
        if (isWithin(rect, pending)) return;
    if (m_pending.size() == MOST_PENDING) return invalidateAll();
    m_pending.push_back(rect);
    InvalidateRect(m_hWnd, &rect, FALSE);
}

void CGXGridWnd::invalidateAll() {
    if (m_allPending || !m_hWnd) return;
    m_allPending = true;
    Invalidate(false);
}

void CGXGridWnd::cellsChanged(const CGXRange& range) {
    if (!m_hWnd) return;
    if (m_open && range.contains(m_open->at.row, m_open->at.col)) refreshOpenCell();
    settleLater();
    if (m_allPending) return;
    const uint32_t lastRow = m_rows.lastInView(), lastCol = m_cols.lastInView();
    if (range.top > lastRow + 1 || (range.top > 0 && range.bottom < m_rows.first())) return;
    if (m_table.isMerging()) return invalidateAll();
    if (range.left > lastCol + 1 || (range.left > 0 && range.right < m_cols.first())) return;
    const auto from = [](const TrackView& view, uint32_t at) {
        return at == 0 ? 0 : std::max(view.start(std::max(at, view.first())), view.headerEnd());
    };
    // What lies behind the last ones is painted with them: there may have been cells.
    invalidate({from(m_cols, range.left), from(m_rows, range.top),
                range.right >= lastCol ? m_cols.length() : m_cols.end(range.right),
                range.bottom >= lastRow ? m_rows.length() : m_rows.end(range.bottom)});
}

void CGXGridWnd::tableResized() {
    if (m_hWnd) settleLater();
}

void CGXGridWnd::selectionMoved(bool scroll) {
    if (!m_hWnd) return;
    if (m_open && m_open->at != m_selection.current()) closeEditor(End::take);
    if (scroll) {
        const CellPlace at = m_selection.extent();
        if (m_rows.reveal(at.row) | m_cols.reveal(at.col)) settleLater();
    }
    noticeSelection();
    invalidateAll();
}

void CGXGridWnd::paint() {
    m_pending.clear();
    m_allPending = false;
    const PaintDC dc(m_hWnd);
    const RECT& area = dc.area();
    if (area.left >= area.right || area.top >= area.bottom) return;
    const MemoryDC memory(dc, area.right - area.left, area.bottom - area.top);
    SetViewportOrgEx(memory, -area.left, -area.top, nullptr);
    paintGrid(memory, area, scene());
    SetViewportOrgEx(memory, 0, 0, nullptr);
    memory.copyTo(dc, area.left, area.top);
}

LRESULT CGXGridWnd::onSetFont(WPARAM w, LPARAM) {
    m_font = reinterpret_cast<HFONT>(w);
    refreshLook();
    return 0;
}

LRESULT CGXGridWnd::onGetFont(WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(m_font); }

void CGXGridWnd::onSize(UINT, int width, int height) {
    m_cols.setLength(width);
    m_rows.setLength(height);
    invalidateAll();
    settleLater();
    placeEditor();
}

void CGXGridWnd::onEnable(bool) { invalidateAll(); }

// With the focus there is a current cell, as soon as there are cells.
void CGXGridWnd::takeCurrent() {
    if (m_selection.hasCurrent() || GetRowCount() == 0 || ::GetFocus() != m_hWnd) return;
    m_selection.setCurrent({1, std::min(1u, GetColCount())});
    invalidateAll();
}

void CGXGridWnd::onFocus(CWnd*) {
    takeCurrent();
    invalidateAll();
}

void CGXGridWnd::onFocusLost(CWnd*) { invalidateAll(); }
