#include "src/platform/gridlib/GridPainter.h"

#include <algorithm>

#include "src/platform/gridlib/CellKind.h"

namespace {

// One cell, or merged ones, with all that drawing them needs.
struct Drawn {
    CGXStyle style;
    CellKind kind;
    RECT rect;  // without the lines
    CellColors colors;
    bool isHeader = false;  // looks as the theme's headers do
};

bool isOnFace(CellKind kind) {
    return kind == CellKind::header || kind == CellKind::face || kind == CellKind::pushFace;
}

class Painter {
  public:
    Painter(HDC dc, const RECT& area, const GridScene& scene)
        : m_dc(dc), m_area(area), m_scene(scene), m_look(scene.look), m_font(dc, scene.look.font()) {
        SetTextAlign(dc, TA_LEFT | TA_TOP);
    }

    void paint() {
        fillRect(m_dc, m_area, m_look.workspace);
        const CGXRange& view = m_scene.view;
        fillLines(view);
        for (uint32_t row = 0; row <= view.bottom; row = row ? row + 1 : m_scene.rows.first())
            for (uint32_t col = 0; col <= view.right; col = col ? col + 1 : m_scene.cols.first())
                paintAt({row, col});
    }

  private:
    // The lines are what the cells leave of this.
    void fillLines(const CGXRange& view) {
        const RECT cells{0, 0, m_scene.cols.end(view.right), m_scene.rows.end(view.bottom)};
        fillRect(m_dc, cells, m_look.line);
    }

    void paintAt(CellPlace at) {
        const ShownCell shown = shownCell(m_scene, at);
        // Merged cells are drawn once: with the first of them in view.
        const auto firstShown = [](uint32_t from, uint32_t first) {
            return from == 0 ? 0 : std::max(from, first);
        };
        if (at.row != firstShown(shown.cells.top, m_scene.rows.first()) ||
            at.col != firstShown(shown.cells.left, m_scene.cols.first()))
            return;
        RECT common;
        if (!IntersectRect(&common, &shown.rect, &m_area)) return;
        draw(drawn(shown), shown.cells);
        if (shown.cells.contains(m_scene.grid.currentCell().row, m_scene.grid.currentCell().col))
            frame(shown.rect);
    }

    Drawn drawn(const ShownCell& shown) const {
        Drawn cell;
        cell.style = m_scene.grid.table().style(shown.cells.top, shown.cells.left);
        cell.kind = cellKind(cell.style);
        cell.rect = shown.rect;
        const int line = m_scene.grid.table().param().IsNewGridLineMode() ? 1 : m_look.scaled(1);
        if (cell.kind != CellKind::header) cell.rect.right -= line, cell.rect.bottom -= line;
        cell.colors = cellColors(m_scene, cell.style);
        cell.isHeader = cell.kind == CellKind::header && !cell.style.look().interior;
        const bool isCurrent = m_scene.grid.currentCell() == CellPlace{shown.cells.top, shown.cells.left};
        const auto& ranges = m_scene.grid.selection().ranges();
        const bool isAlone =
            ranges.size() == 1 && ranges[0].top == ranges[0].bottom && ranges[0].left == ranges[0].right;
        // A current cell alone keeps its colour: its frame tells enough.
        if (m_scene.grid.selection().contains(shown.cells.top, shown.cells.left) && !(isCurrent && isAlone)) {
            cell.isHeader = false;
            cell.colors.interior = m_look.selected(cell.colors.interior);
            if (m_look.isHighContrast()) cell.colors.text = m_look.highlightText;
        }
        return cell;
    }

    void draw(const Drawn& cell, const CGXRange& cells) {
        RECT inner = cell.rect;
        if (cell.isHeader)
            m_look.drawHeader(m_dc, cell.rect);
        else
            fillRect(m_dc, cell.rect, cell.colors.interior);
        if (cell.kind == CellKind::pushFace) m_look.drawRaised(m_dc, cell.rect);
        if (cell.kind == CellKind::check) {
            m_look.drawTick(m_dc, cell.rect, isTicked(cell.style),
                            m_scene.isEnabled && isEditable(cell.style));
        } else {
            if (cell.kind == CellKind::choice && isEditable(cell.style))
                inner.right -= m_look.drawDropArrow(m_dc, inner);
            drawText(cell, inner);
        }
        const auto& refused = m_scene.refused;
        if (std::find(refused.begin(), refused.end(), CellPlace{cells.top, cells.left}) != refused.end())
            drawRefusal(cell.rect);
    }

    void drawText(const Drawn& cell, const RECT& inner) {
        const CString text = shownText(cell.style);
        RECT rect = inner;
        rect.left += m_look.margin();
        rect.right -= m_look.margin();
        if (text.empty() || rect.left >= rect.right) return;
        SetTextColor(m_dc, cell.colors.text);
        const uint8_t alignment = cell.style.look().horizontal.value_or(ALIGN_LEFT);
        const int width = m_look.textWidth(m_dc, text);
        const bool hasLines = text.find(L'\n') != CString::npos;
        SetBkMode(m_dc, TRANSPARENT);
        if (hasLines || (cell.style.look().wrap.value_or(false) && width > rect.right - rect.left)) {
            const UINT align = alignment == ALIGN_RIGHT    ? DT_RIGHT
                               : alignment == ALIGN_CENTER ? DT_CENTER
                                                           : DT_LEFT;
            const UINT breaks = cell.style.look().wrap.value_or(false) ? DT_WORDBREAK | DT_EDITCONTROL : 0;
            rect.top += 1;
            DrawTextW(m_dc, text.data(), static_cast<int>(text.size()), &rect, align | breaks | DT_NOPREFIX);
            return;
        }
        int x = rect.left;
        if (alignment == ALIGN_RIGHT) x = rect.right - width;
        if (alignment == ALIGN_CENTER) x = std::max<int>(rect.left, (rect.left + rect.right - width) / 2);
        const int y = std::max<int>(inner.top, (inner.top + inner.bottom - m_look.lineHeight()) / 2);
        ExtTextOutW(m_dc, x, y, ETO_CLIPPED, &rect, text.data(), static_cast<UINT>(text.size()), nullptr);
    }

    // A corner in red.
    void drawRefusal(const RECT& rect) {
        const int side = m_look.scaled(6);
        for (int i = 0; i < side; ++i) {
            const RECT dash{rect.right - side + i, rect.top + i, rect.right, rect.top + i + 1};
            fillRect(m_dc, dash, RGB(200, 0, 0));
        }
    }

    void frame(RECT rect) {
        if (!m_scene.hasFocus) return;
        const int thick = m_look.scaled(2);
        const COLORREF color = m_look.isHighContrast() ? m_look.text : m_look.highlight;
        fillRect(m_dc, {rect.left, rect.top, rect.right, rect.top + thick}, color);
        fillRect(m_dc, {rect.left, rect.bottom - thick, rect.right, rect.bottom}, color);
        fillRect(m_dc, {rect.left, rect.top, rect.left + thick, rect.bottom}, color);
        fillRect(m_dc, {rect.right - thick, rect.top, rect.right, rect.bottom}, color);
    }

    HDC m_dc;
    const RECT& m_area;
    const GridScene& m_scene;
    const GridLook& m_look;
    SelectedObject m_font;
};

}  // namespace

ShownCell shownCell(const GridScene& scene, CellPlace at) {
    // The row of headers merges with no data.
    CGXRange within = scene.view;
    if (at.row == 0)
        within.bottom = 0;
    else
        within.top = std::min(at.row, scene.rows.first());
    within.bottom = std::max(within.bottom, at.row);
    within.right = std::max(within.right, at.col);
    const CGXRange cells = scene.grid.table().merged(at.row, at.col, within);
    const auto from = [](const TrackView& view, uint32_t at) {
        return at == 0 ? 0 : std::max(view.start(at), view.headerEnd());
    };
    return {cells,
            {from(scene.cols, cells.left), from(scene.rows, cells.top), scene.cols.end(cells.right),
             scene.rows.end(cells.bottom)}};
}

CellColors cellColors(const GridScene& scene, const CGXStyle& style) {
    const bool onFace = isOnFace(cellKind(style)) || !scene.isEnabled;
    CellColors colors;
    colors.interior = style.look().interior.value_or(onFace ? scene.look.face : scene.look.window);
    colors.text = style.look().textColor.value_or(onFace ? scene.look.faceText : scene.look.text);
    if (!scene.isEnabled) colors.text = scene.look.grayText;
    return colors;
}

void paintGrid(HDC dc, const RECT& area, const GridScene& scene) { Painter(dc, area, scene).paint(); }

int fittingHeight(HDC dc, const GridScene& scene, CellPlace at) {
    const CGXStyle style = scene.grid.table().style(at.row, at.col);
    const int width = scene.cols.scaled(scene.cols.sizes().size(at.col)) - 2 * scene.look.margin();
    const CString text = shownText(style);
    const bool wraps = style.look().wrap.value_or(false);
    return (wraps ? scene.look.wrappedHeight(dc, text, width) : scene.look.lineHeight()) + 3;
}

int fittingWidth(HDC dc, const GridScene& scene, CellPlace at) {
    const CGXStyle style = scene.grid.table().style(at.row, at.col);
    const CString text = shownText(style);
    int width = 0;
    for (size_t from = 0; from <= text.size();) {
        const size_t end = std::min(text.find(L'\n', from), text.size());
        width = std::max(width, scene.look.textWidth(dc, std::wstring_view(text).substr(from, end - from)));
        from = end + 1;
    }
    if (cellKind(style) == CellKind::choice) width += scene.look.scaled(12);
    return width + 2 * scene.look.margin() + 1;
}
