// What a grid's window tells who asks it by message: the host's drive, assistive programs.
#include <oleacc.h>

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/CellKind.h"
#include "src/platform/gridlib/GridAccessible.h"

namespace {

GridArea::Kind kindOf(const CGXRange& range) {
    switch (range.kind) {
        case CGXRange::rows:
            return GridArea::rows;
        case CGXRange::columns:
            return GridArea::columns;
        case CGXRange::table:
            return GridArea::table;
        default:
            return GridArea::cells;
    }
}

CGXRange rangeOf(const GridArea& area) {
    switch (area.kind) {
        case GridArea::rows:
            return CGXRange::ofRows(area.top, area.bottom);
        case GridArea::columns:
            return CGXRange::ofColumns(area.left, area.right);
        case GridArea::table:
            return CGXRange::ofTable();
        default:
            return CGXRange(area.top, area.left, area.bottom, area.right);
    }
}

}  // namespace

bool CGXGridWnd::answer(GridQuestion question, void* record) {
    switch (question) {
        case GridQuestion::Table:
            tell(*static_cast<GridTableLook*>(record));
            return true;
        case GridQuestion::Cell:
            return tell(*static_cast<GridCellLook*>(record));
        case GridQuestion::Show: {
            const auto& at = *static_cast<const GridPlace*>(record);
            if (!m_table.has(at.row, at.column)) return false;
            if (m_rows.reveal(at.row) | m_cols.reveal(at.column)) {
                invalidateAll();
                settleLater();
                placeEditor();
            }
            return true;
        }
        case GridQuestion::Hit:
            return tell(*static_cast<GridHit*>(record));
        case GridQuestion::Select:
            return select(*static_cast<const GridTableLook*>(record));
    }
    return false;
}

bool CGXGridWnd::tell(GridHit& point) const {
    CellPlace track;
    const CellPlace place = hit({point.x, point.y});
    point.at = {place.row, place.col};
    point.onBorder = borderAt({point.x, point.y}, track) != Gesture::none;
    point.opensChoices = hasChoiceArrow(place, {point.x, point.y});
    return m_table.has(place.row, place.col);
}

bool CGXGridWnd::select(const GridTableLook& wanted) {
    const GridPlace at = wanted.current;
    if (!wanted.hasCurrent || at.row == 0 || !m_table.has(at.row, at.column)) return false;
    std::vector<CGXRange> ranges;
    for (const GridArea& area : std::span(wanted.areas, wanted.areaCount))
        if (m_table.has(area.bottom, area.right)) ranges.push_back(rangeOf(area));
    m_selection.restore({at.row, at.column}, std::move(ranges));
    selectionMoved(true);
    return true;
}

void CGXGridWnd::tell(GridTableLook& table) {
    table.rows = GetRowCount();
    table.columns = GetColCount();
    table.hasCurrent = m_selection.hasCurrent();
    table.current = {m_selection.current().row, m_selection.current().col};
    table.first = {m_rows.first(), m_cols.first()};
    m_toldAreas.clear();
    for (const CGXRange& range : m_selection.ranges())
        if (const auto cells = m_table.within(range)) {
            const bool isWhole = range.kind == CGXRange::rows || range.kind == CGXRange::table;
            const uint32_t left = isWhole ? std::min(1u, cells->right) : cells->left;
            m_toldAreas.push_back({cells->top, left, cells->bottom, cells->right, kindOf(range)});
        }
    table.areas = m_toldAreas.data();
    table.areaCount = static_cast<uint32_t>(m_toldAreas.size());
}

bool CGXGridWnd::tell(GridCellLook& cell) {
    const CellPlace at{cell.at.row, cell.at.column};
    if (!m_table.has(at.row, at.col)) return false;
    const ShownCell shown = shownCell(scene(), at);
    const auto isInView = [](const TrackView& view, uint32_t from, uint32_t to) {
        return from == 0 || (to >= view.first() && from <= view.lastInView());
    };
    RECT rect{};
    if (isInView(m_rows, shown.cells.top, shown.cells.bottom) &&
        isInView(m_cols, shown.cells.left, shown.cells.right)) {
        const RECT client = GetClientRect();
        IntersectRect(&rect, &shown.rect, &client);
    }
    cell.rect = {rect.left, rect.top, rect.right, rect.bottom};

    const CGXStyle style = m_table.style(at.row, at.col);
    const CellLook& look = style.look();
    cell.isEdited = m_open && m_open->at == at;
    m_toldText = cell.isEdited ? m_open->text : shownText(style);
    m_toldChoices.clear();
    for (const CString& choice : style.choices()) {
        if (!m_toldChoices.empty()) m_toldChoices += L'\n';
        m_toldChoices += choice;
    }
    cell.text = m_toldText.c_str();
    cell.choices = m_toldChoices.c_str();
    cell.controlType = look.control.value_or(CONTROL_EDIT);
    cell.readOnly = look.readOnly.value_or(false);
    cell.isEditable = at.row > 0 && isEditable(style);
    cell.isTicked = cellKind(style) == CellKind::check && isTicked(style);
    cell.wraps = look.wrap.value_or(false);
    cell.merge = look.merge.value_or(MERGE_NOT);
    cell.alignment = look.horizontal.value_or(ALIGN_LEFT);
    const CellColors colors = cellColors(scene(), style);
    cell.interior = colors.interior;
    cell.textColor = colors.text;
    cell.places = look.places.value_or(-1);
    cell.width = GetColWidth(at.col);
    cell.height = GetRowHeight(at.row);
    return true;
}

LRESULT CGXGridWnd::onGetObject(WPARAM w, LPARAM l) {
    return static_cast<LONG>(l) == OBJID_CLIENT ? gridObject(m_hWnd, w) : Default();
}

LRESULT CGXGridWnd::onSelect(WPARAM place, LPARAM flags) {
    const CellPlace at{static_cast<uint32_t>(place >> 32), static_cast<uint32_t>(place)};
    if (at.row == 0 || !m_table.has(at.row, at.col)) return 0;
    if (!(flags & (SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION))) {
        moveTo(at, flags & SELFLAG_EXTENDSELECTION);
        return 1;
    }
    const bool adds = flags & SELFLAG_ADDSELECTION;
    if (m_selection.contains(at.row, at.col) == adds) return 1;
    // A cell is taken from the selection only where it is a range by itself: ranges have no holes.
    const auto& ranges = m_selection.ranges();
    if (!adds && std::find(ranges.begin(), ranges.end(), CGXRange(at.row, at.col)) == ranges.end()) return 0;
    m_selection.begin(CGXRange::cells, at, true);
    selectionMoved(true);
    tellSelection(false, true);
    return 1;
}

LRESULT CGXGridWnd::onCellAt(WPARAM x, LPARAM y) {
    const CellPlace at = hit({static_cast<LONG>(x), static_cast<LONG>(y)});
    return static_cast<LRESULT>(uint64_t{at.row} << 32 | at.col);
}
