// What the mouse does in a grid's window: selecting, sizing columns and rows, opening and ticking cells.
#include <algorithm>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/CellKind.h"
#include "src/platform/gridlib/GridMessages.h"

namespace {

// How near to a border it can be taken, in pixels at 96 dots per inch.
constexpr int BORDER_REACH = 4;
// How wide the arrow of a cell with choices is.
constexpr int CHOICE_ARROW = 14;
// Nothing is dragged smaller than this.
constexpr int32_t SMALLEST_TRACK = 6;
// How many rows decide how wide a column is made to fit.
constexpr uint32_t FITTED_ROWS = 2000;
constexpr int LARGEST_FIT = 1000;
// How many columns right of the view decide how high a row is made to fit.
constexpr uint32_t FITTED_COLUMNS = 100;

// The column whose right border is near, or the row whose lower border is; 0 included, -1 for none.
int64_t borderNear(const TrackView& view, int pixel, int reach) {
    const uint32_t at = view.at(pixel);
    if (at <= view.last() && view.end(at) - pixel <= reach) return at;
    if (at == 0 || pixel - view.start(std::min(at, view.last() + 1)) > reach) return -1;
    return at == view.first() ? 0 : int64_t{at} - 1;
}

// The largest size with which it is wholly in view, at 96 dots per inch. A person makes nothing larger, so
// that its border can be taken again.
int32_t room(const TrackView& view, uint32_t track) {
    const int pixels = std::max(0, view.length() - (track == 0 ? 0 : view.headerEnd()));
    return std::max(MulDiv(pixels, USER_DEFAULT_SCREEN_DPI, view.scale()), SMALLEST_TRACK);
}

}  // namespace

CellPlace CGXGridWnd::hit(POINT at) const {
    CellPlace place{m_rows.at(at.y), m_cols.at(at.x)};
    if (!m_table.has(place.row, place.col)) return place;
    const CGXRange merged = m_table.merged(place.row, place.col);
    return {merged.top, merged.left};
}

// The data cell or row header at that place, or the nearest one.
CellPlace CGXGridWnd::hitWithin(POINT at) const {
    const auto within = [](const TrackView& view, LONG pixel) {
        return std::min(view.at(std::clamp<LONG>(pixel, 0, std::max(view.length() - 1, 0))), view.last());
    };
    return {std::max(within(m_rows, at.y), 1u), within(m_cols, at.x)};
}

CGXGridWnd::Gesture CGXGridWnd::borderAt(POINT at, CellPlace& track) const {
    const int reach = m_look.scaled(BORDER_REACH);
    if (at.y < m_rows.headerEnd() && m_table.param().IsEnableTrackColWidth())
        if (const int64_t col = borderNear(m_cols, at.x, reach); col >= 0) {
            track.col = static_cast<uint32_t>(col);
            return Gesture::sizingColumn;
        }
    if (at.x < m_cols.headerEnd() && m_table.param().IsEnableTrackRowHeight())
        if (const int64_t row = borderNear(m_rows, at.y, reach); row >= 0) {
            track.row = static_cast<uint32_t>(row);
            return Gesture::sizingRow;
        }
    return Gesture::none;
}

void CGXGridWnd::beginSelection(CellPlace at, bool extend, bool add) {
    if (at.row == 0 && at.col == 0) return m_selection.all();
    const bool ofRow = at.col == 0 && !isEditableAt(at);
    const auto kind = at.row == 0 ? CGXRange::columns : ofRow ? CGXRange::rows : CGXRange::cells;
    at.row = std::max(at.row, 1u);
    if (extend)
        m_selection.extend(at);
    else
        m_selection.begin(kind, at, add);
    if (kind != CGXRange::cells) return;
    const CGXRange merged = m_table.merged(at.row, at.col);
    if (merged != CGXRange(at.row, at.col)) m_selection.extend({merged.bottom, merged.right});
}

void CGXGridWnd::OnLButtonDown(UINT keys, POINT at) {
    // Either may run Lisp, which may end the dialog.
    closeEditor(End::take);
    if (!isLive()) return;
    ::SetFocus(m_hWnd);
    if (!isLive()) return;
    // The release of an earlier press may have been lost.
    dropGesture();
    m_gesture = borderAt(at, m_pressed);
    if (m_gesture != Gesture::none) {
        m_pressedAt = m_gesture == Gesture::sizingColumn ? m_cols.end(m_pressed.col) - at.x
                                                         : m_rows.end(m_pressed.row) - at.y;
        SetCapture(m_hWnd);
        return;
    }
    const CellPlace place = hit(at);
    if (!m_table.has(place.row, place.col) || GetRowCount() == 0) return;
    const CellPlace current = m_selection.current();
    const bool leaves = m_selection.hasCurrent() && place != current && !(keys & MK_SHIFT);
    if (leaves && !OnLeftCell(current.row, current.col, place.row, place.col)) return;
    m_pressed = place;
    m_gesture = Gesture::selecting;
    beginSelection(place, keys & MK_SHIFT, keys & MK_CONTROL);
    if (!(keys & MK_SHIFT)) m_column = {place, std::min(m_cols.at(at.x), GetColCount())};
    SetCapture(m_hWnd);
    selectionMoved(false);
}

void CGXGridWnd::dragTo(POINT at) {
    if (m_pressed == CellPlace()) return;
    const CellPlace to = hitWithin(at);
    if (to == m_selection.extent() || (m_pressed == hit(at))) return;
    m_selection.extend(to);
    selectionMoved(false);
    OnChangedSelection(&m_selection.ranges().back(), true, false);
}

void CGXGridWnd::dragBorder(POINT at) {
    const bool ofColumn = m_gesture == Gesture::sizingColumn;
    const TrackView& view = ofColumn ? m_cols : m_rows;
    const uint32_t track = ofColumn ? m_pressed.col : m_pressed.row;
    const int size = (ofColumn ? at.x : at.y) + m_pressedAt - view.start(track);
    const int32_t unscaled = std::clamp(MulDiv(size, USER_DEFAULT_SCREEN_DPI, m_look.dotsPerInch()),
                                        SMALLEST_TRACK, room(view, track));
    if (ofColumn)
        SetColWidth(track, track, unscaled);
    else
        SetRowHeight(track, track, unscaled);
}

void CGXGridWnd::onMouseMove(UINT, POINT at) {
    if (m_gesture == Gesture::none) return;
    if (m_gesture != Gesture::selecting) return dragBorder(at);
    m_draggedTo = at;
    const RECT client = GetClientRect();
    if (PtInRect(&client, at))
        KillTimer(m_hWnd, TIMER_DRAG);
    else
        SetTimer(m_hWnd, TIMER_DRAG, DRAG_MILLISECONDS, nullptr);
    dragTo(at);
}

// A drag that is held outside scrolls on, the faster the farther it is.
void CGXGridWnd::onTimer(UINT_PTR) {
    const auto step = [](int pixel, int length, int header) -> int64_t {
        const int beyond = pixel < header ? pixel - header : std::max(0, pixel - length + 1);
        return beyond / 16 + (beyond > 0) - (beyond < 0);
    };
    if (m_gesture != Gesture::selecting) return;
    // Whole rows are taken from their headers, which isn't left of the columns; the same with columns.
    const POINT at = m_draggedTo;
    const auto kind = m_selection.ranges().empty() ? CGXRange::cells : m_selection.ranges().back().kind;
    const int64_t down = kind == CGXRange::columns ? 0 : step(at.y, m_rows.length(), m_rows.headerEnd());
    const int64_t right = kind == CGXRange::rows ? 0 : step(at.x, m_cols.length(), m_cols.headerEnd());
    showScrolled(m_rows.scrollBy(down, TrackView::Stride::quarter) |
                 m_cols.scrollBy(right, TrackView::Stride::quarter));
    dragTo(at);
}

CGXGridWnd::Gesture CGXGridWnd::dropGesture() {
    const Gesture dropped = std::exchange(m_gesture, Gesture::none);
    KillTimer(m_hWnd, TIMER_DRAG);
    if (GetCapture() == m_hWnd) ReleaseCapture();
    return dropped;
}

void CGXGridWnd::endGesture() {
    if (dropGesture() == Gesture::selecting) tellSelection(false, false);
}

bool CGXGridWnd::hasChoiceArrow(CellPlace place, POINT at) const {
    return isEditableAt(place) && cellKind(m_table.style(place.row, place.col)) == CellKind::choice &&
           at.x >= shownCell(scene(), place).rect.right - m_look.scaled(CHOICE_ARROW);
}

void CGXGridWnd::onLButtonUp(UINT, POINT at) {
    if (m_gesture == Gesture::none) return;
    const bool isClick = m_gesture == Gesture::selecting && hit(at) == m_pressed;
    const CellPlace pressed = m_pressed;
    endGesture();
    if (!isClick || !isLive() || pressed != m_selection.current() || !isEditableAt(pressed)) return;
    const CellKind kind = cellKind(m_table.style(pressed.row, pressed.col));
    if (kind == CellKind::check) {
        toggle(pressed);
    } else if (hasChoiceArrow(pressed, at)) {
        if (startEditing(false)) m_editor.dropDown();
    }
}

void CGXGridWnd::onLButtonDblClk(UINT keys, POINT at) {
    CellPlace track;
    const Gesture border = borderAt(at, track);
    if (border == Gesture::sizingColumn) return fitColumn(track.col);
    if (border == Gesture::sizingRow) return fitRow(track.row);
    const CellPlace place = hit(at);
    if (!m_table.has(place.row, place.col)) return;
    // The second press of a fast pair is one all the same, on a cell that ticks or on another cell.
    const bool ticks = cellKind(m_table.style(place.row, place.col)) == CellKind::check;
    if (ticks || place != m_selection.current() || !isEditableAt(place)) return OnLButtonDown(keys, at);
    startEditing(false);
}

void CGXGridWnd::onCaptureChanged(CWnd*) {
    if (m_gesture != Gesture::none) endGesture();
}

bool CGXGridWnd::onSetCursor(CWnd*, UINT area, UINT) {
    POINT at;
    GetCursorPos(&at);
    ScreenToClient(m_hWnd, &at);
    CellPlace track;
    const Gesture gesture = area == HTCLIENT ? borderAt(at, track) : Gesture::none;
    if (gesture == Gesture::none) return Default() != 0;
    SetCursor(LoadCursorW(nullptr, gesture == Gesture::sizingColumn ? IDC_SIZEWE : IDC_SIZENS));
    return true;
}

void CGXGridWnd::fitColumn(uint32_t col) {
    const ClientDC dc(m_hWnd);
    const SelectedObject font(dc, m_look.font());
    int width = 0;
    const uint32_t first = m_rows.first();
    const uint64_t last = std::min<uint64_t>(uint64_t{first} + FITTED_ROWS, GetRowCount());
    const auto measure = [&](uint32_t row) {
        // A text that spans several columns doesn't tell how wide one shall be.
        const CGXRange merged = m_table.merged(row, col);
        if (merged.left == merged.right) width = std::max(width, fittingWidth(dc, scene(), {row, col}));
    };
    measure(0);
    for (uint64_t row = first; row <= last; ++row) measure(static_cast<uint32_t>(row));
    const int unscaled = MulDiv(width, USER_DEFAULT_SCREEN_DPI, m_look.dotsPerInch()) + 1;
    SetColWidth(col, col, std::clamp(unscaled, SMALLEST_TRACK, std::min(LARGEST_FIT, room(m_cols, col))));
}

void CGXGridWnd::fitRow(uint32_t row) {
    const ClientDC dc(m_hWnd);
    const SelectedObject font(dc, m_look.font());
    int height = m_look.lineHeight();
    const uint32_t last = std::min(GetColCount(), m_cols.lastInView() + FITTED_COLUMNS);
    for (uint32_t col = 0; col <= last; ++col) {
        // A text that spans several rows doesn't tell how high one shall be.
        const CGXRange merged = m_table.merged(row, col);
        if (merged.top == merged.bottom) height = std::max(height, fittingHeight(dc, scene(), merged));
        col = merged.right;
    }
    const int unscaled = MulDiv(height, USER_DEFAULT_SCREEN_DPI, m_look.dotsPerInch()) + 1;
    SetRowHeight(row, row, std::clamp(unscaled, SMALLEST_TRACK, room(m_rows, row)));
}
