#include "src/platform/gridlib/GridPainter.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "src/platform/gridlib/CellKind.h"
#include "src/platform/gridlib/MergedView.h"

namespace {

// A width in which only line ends break a text.
constexpr int UNBROKEN = 100'000;
constexpr COLORREF REFUSED = RGB(200, 0, 0);

bool isOnFace(CellKind kind) {
    return kind == CellKind::header || kind == CellKind::face || kind == CellKind::pushFace;
}

// What begins before the view is taken to begin with the first one in view.
int shownFrom(const TrackView& view, uint32_t at) {
    return at == 0 ? 0 : view.start(std::max(at, view.first()));
}

// Where cells begin that are neither headers: nothing of them shows before.
int edge(const TrackView& view, uint32_t at) { return at == 0 ? 0 : view.headerEnd(); }

CellColors colorsOf(const GridScene& scene, const CellLook& look, CellKind kind) {
    const bool onFace = isOnFace(kind) || !scene.isEnabled;
    CellColors colors;
    colors.interior = look.interior.value_or(onFace ? scene.look.face : scene.look.window);
    colors.text = look.textColor.value_or(onFace ? scene.look.faceText : scene.look.text);
    if (!scene.isEnabled) colors.text = scene.look.grayText;
    return colors;
}

RECT shownRect(const GridScene& scene, const CGXRange& cells) {
    return {shownFrom(scene.cols, cells.left), shownFrom(scene.rows, cells.top), scene.cols.end(cells.right),
            scene.rows.end(cells.bottom)};
}

// What drawing needs of a look, found once for all cells that have it.
struct DrawnLook {
    CGXStyle style;  // that of one of the cells
    CellKind kind;
    CellColors colors;
    bool isHeader;  // looks as the theme's headers do
    bool isEditable, wraps, showsPlaces;
    uint8_t alignment;
};

struct LookHash {
    size_t operator()(const GridTable::LookKey& key) const {
        const size_t inherited =
            std::hash<const void*>()(key.ofRow) * 31 + std::hash<const void*>()(key.ofColumn);
        return (inherited * 31 + key.own) * 2 + key.isHeader;
    }
};

// A row or column of which something has to be drawn.
struct Track {
    uint32_t at;
    int from, to;
};

// Each call of the platform counts: a cell is drawn by one of them where it can be.
class Painter {
  public:
    Painter(HDC dc, const RECT& area, const GridScene& scene)
        : m_dc(dc),
          m_area(area),
          m_scene(scene),
          m_look(scene.look),
          m_table(scene.grid.table()),
          m_current(scene.grid.currentCell()),
          m_font(dc, scene.look.font()),
          m_merged(m_table, {scene.rows.first(), scene.cols.first()}, {scene.view.bottom, scene.view.right}),
          m_drawn(m_merged.blockCount()),
          m_base(scene.isEnabled ? scene.look.window : scene.look.face) {
        SetTextAlign(dc, TA_LEFT | TA_TOP);
        SetBkMode(dc, TRANSPARENT);
        for (const CGXRange& range : scene.grid.selection().ranges())
            if (range.touches(scene.view)) m_selected.push_back(range);
        const auto& ranges = scene.grid.selection().ranges();
        m_currentIsAlone =
            ranges.size() == 1 && ranges[0].top == ranges[0].bottom && ranges[0].left == ranges[0].right;
    }

    void paint() {
        fill(m_area, m_look.workspace);
        const auto rows = tracks(m_scene.rows, m_scene.view.bottom, m_area.top, m_area.bottom);
        const auto cols = tracks(m_scene.cols, m_scene.view.right, m_area.left, m_area.right);
        if (rows.empty() || cols.empty()) return;
        fillBase(rows, cols);
        for (const Track& row : rows)
            for (const Track& col : cols) paintAt(row, col);
    }

  private:
    static std::vector<Track> tracks(const TrackView& view, uint32_t last, int from, int to) {
        std::vector<Track> tracks;
        for (uint32_t at = 0; at <= last; at = at ? at + 1 : view.first()) {
            const Track track{at, view.start(at), view.end(at)};
            if (track.from >= to) break;
            if (track.to > from && track.to > track.from) tracks.push_back(track);
        }
        return tracks;
    }

    // Empty cells and the lines around them, on which the others are drawn.
    void fillBase(const std::vector<Track>& rows, const std::vector<Track>& cols) {
        const RECT cells{cols.front().from, rows.front().from, cols.back().to, rows.back().to};
        fill(cells, m_base);
        const int line = lineWidth();
        for (const Track& row : rows) fill({cells.left, row.to - line, cells.right, row.to}, m_look.line);
        for (const Track& col : cols) fill({col.to - line, cells.top, col.to, cells.bottom}, m_look.line);
    }

    int lineWidth() const { return m_table.param().IsNewGridLineMode() ? 1 : m_look.scaled(1); }

    void paintAt(const Track& row, const Track& col) {
        const size_t block = m_merged.blockAt(row.at, col.at);
        if (m_drawn[block]) return;
        m_drawn[block] = true;
        const CGXRange& cells = m_merged.block(block);
        const bool isMerged = cells.top != cells.bottom || cells.left != cells.right;
        RECT rect{col.from, row.from, col.to, row.to};
        if (isMerged) rect = shownRect(m_scene, cells);
        const POINT from{edge(m_scene.cols, cells.left), edge(m_scene.rows, cells.top)};
        const bool isCut = rect.left < from.x || rect.top < from.y;
        if (isCut) cutAt(from);
        drawCell(cells, rect, isMerged);
        if (m_scene.hasFocus && cells.contains(m_current.row, m_current.col)) frame(rect);
        if (isCut) endCut();
    }

    // Only one that is larger than the view is ever scrolled away in part.
    void cutAt(POINT from) const {
        SaveDC(m_dc);
        IntersectClipRect(m_dc, from.x, from.y, m_area.right, m_area.bottom);
    }
    void endCut() {
        RestoreDC(m_dc, -1);
        m_background = m_textColor = CLR_INVALID;
    }

    const DrawnLook& lookOf(uint32_t row, uint32_t col) {
        const GridTable::LookKey key = m_table.lookKey(row, col);
        if (m_lastLook && key == m_lastKey) return *m_lastLook;
        m_lastKey = key;
        const auto [at, isNew] = m_looks.try_emplace(key);
        DrawnLook& drawn = at->second;
        m_lastLook = &drawn;
        if (!isNew) return drawn;
        drawn.style = m_table.style(row, col);
        const CellLook& look = drawn.style.look();
        drawn.kind = cellKind(look);
        drawn.colors = colorsOf(m_scene, look, drawn.kind);
        drawn.isHeader = drawn.kind == CellKind::header && !look.interior;
        drawn.isEditable = isEditable(look);
        drawn.wraps = look.wrap.value_or(false);
        drawn.showsPlaces = showsPlaces(look);
        drawn.alignment = look.horizontal.value_or(ALIGN_LEFT);
        return drawn;
    }

    // A current cell alone keeps its colour: its frame tells enough.
    bool isSelected(const CGXRange& cells) const {
        if (m_currentIsAlone && m_current == CellPlace{cells.top, cells.left}) return false;
        return std::any_of(m_selected.begin(), m_selected.end(),
                           [&](const CGXRange& range) { return range.contains(cells.top, cells.left); });
    }

    void drawCell(const CGXRange& cells, RECT rect, bool isMerged) {
        const DrawnLook& look = lookOf(cells.top, cells.left);
        CellColors colors = look.colors;
        const bool selected = !m_selected.empty() && isSelected(cells);
        if (selected) {
            colors.interior = m_look.selected(colors.interior);
            if (m_look.isHighContrast()) colors.text = m_look.highlightText;
        }
        bool isFilled = colors.interior == m_base && !isMerged;
        if (look.isHeader && !selected) {
            m_look.drawHeader(m_dc, rect);
            m_background = CLR_INVALID;
            isFilled = true;
        } else if (look.kind != CellKind::header) {
            rect.right -= lineWidth();
            rect.bottom -= lineWidth();
        }
        const auto needFill = [&] {
            if (!std::exchange(isFilled, true)) fill(rect, colors.interior);
        };
        if (look.kind == CellKind::pushFace) {
            needFill();
            m_look.drawRaised(m_dc, rect);
        }
        if (look.kind == CellKind::check) {
            needFill();
            const CGXStyle style = m_table.style(cells.top, cells.left);
            m_look.drawTick(m_dc, rect, isTicked(style), m_scene.isEnabled && look.isEditable);
            m_background = CLR_INVALID;
        } else {
            RECT inner = rect;
            if (look.kind == CellKind::choice && look.isEditable) {
                needFill();
                inner.right -= m_look.drawDropArrow(m_dc, inner);
                m_background = CLR_INVALID;
            }
            drawText(cells, look, colors, inner, isFilled);
        }
        const auto& refused = m_scene.refused;
        if (std::binary_search(refused.begin(), refused.end(), CellPlace{cells.top, cells.left}))
            drawRefusal(rect);
    }

    // The cell's background too, where it isn't filled yet.
    void drawText(const CGXRange& cells, const DrawnLook& look, CellColors colors, const RECT& inner,
                  bool isFilled) {
        std::wstring_view text = m_table.value(cells.top, cells.left);
        CString formatted;
        if (look.showsPlaces) text = formatted = shownText(m_table.style(cells.top, cells.left));
        RECT rect = inner;
        rect.left += m_look.margin();
        rect.right -= m_look.margin();
        if (text.empty() || rect.left >= rect.right) {
            if (!isFilled) fill(inner, colors.interior);
            return;
        }
        if (colors.text != m_textColor) SetTextColor(m_dc, m_textColor = colors.text);
        const auto length = static_cast<UINT>(text.size());
        const int room = rect.right - rect.left, width = m_look.textWidth(m_dc, text);
        if (text.find(L'\n') != text.npos || (look.wraps && width > room)) {
            if (!isFilled) fill(inner, colors.interior);
            rect.top += 1;
            const UINT breaks = look.wraps ? DT_WORDBREAK | DT_EDITCONTROL : 0;
            DrawTextW(m_dc, text.data(), static_cast<int>(length), &rect,
                      alignFlag(look.alignment) | breaks | DT_NOPREFIX);
            return;
        }
        int x = rect.left;
        if (look.alignment == ALIGN_RIGHT) x = rect.right - width;
        if (look.alignment == ALIGN_CENTER) x = std::max<int>(rect.left, rect.left + (room - width) / 2);
        const int y = std::max<int>(inner.top, (inner.top + inner.bottom - m_look.lineHeight()) / 2);
        if (!isFilled) setBackground(colors.interior);
        // Too long a text ends before the margin, as it begins behind one.
        const bool fits = width <= room;
        if (!fits && !isFilled) fill(inner, colors.interior);
        ExtTextOutW(m_dc, x, y, fits && !isFilled ? ETO_CLIPPED | ETO_OPAQUE : ETO_CLIPPED,
                    fits ? &inner : &rect, text.data(), length, nullptr);
    }

    static UINT alignFlag(uint8_t alignment) {
        return alignment == ALIGN_RIGHT ? DT_RIGHT : alignment == ALIGN_CENTER ? DT_CENTER : DT_LEFT;
    }

    void setBackground(COLORREF color) {
        if (color != m_background) SetBkColor(m_dc, m_background = color);
    }
    void fill(const RECT& rect, COLORREF color) {
        setBackground(color);
        ExtTextOutW(m_dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    }

    // A corner in red, or in a color that shows on any other.
    void drawRefusal(const RECT& rect) {
        const int side = m_look.scaled(6);
        const COLORREF color = m_look.isHighContrast() ? m_look.text : REFUSED;
        for (int i = 0; i < side; ++i)
            fill({rect.right - side + i, rect.top + i, rect.right, rect.top + i + 1}, color);
    }

    void frame(const RECT& rect) {
        const int thick = m_look.scaled(2);
        const COLORREF color = m_look.isHighContrast() ? m_look.text : m_look.highlight;
        fill({rect.left, rect.top, rect.right, rect.top + thick}, color);
        fill({rect.left, rect.bottom - thick, rect.right, rect.bottom}, color);
        fill({rect.left, rect.top, rect.left + thick, rect.bottom}, color);
        fill({rect.right - thick, rect.top, rect.right, rect.bottom}, color);
    }

    HDC m_dc;
    const RECT& m_area;
    const GridScene& m_scene;
    const GridLook& m_look;
    const GridTable& m_table;
    const CellPlace m_current;
    const SelectedObject m_font;
    const MergedView m_merged;
    std::vector<bool> m_drawn;  // of the merged blocks
    std::vector<CGXRange> m_selected;
    bool m_currentIsAlone;
    const COLORREF m_base;                                           // of a cell without a look
    COLORREF m_background = CLR_INVALID, m_textColor = CLR_INVALID;  // as the device context has them
    std::unordered_map<GridTable::LookKey, DrawnLook, LookHash> m_looks;
    GridTable::LookKey m_lastKey{};
    const DrawnLook* m_lastLook = nullptr;
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
    RECT rect = shownRect(scene, cells);
    rect.left = std::max<LONG>(rect.left, edge(scene.cols, cells.left));
    rect.top = std::max<LONG>(rect.top, edge(scene.rows, cells.top));
    return {cells, rect};
}

CellColors cellColors(const GridScene& scene, const CGXStyle& style) {
    return colorsOf(scene, style.look(), cellKind(style));
}

void paintGrid(HDC dc, const RECT& area, const GridScene& scene) { Painter(dc, area, scene).paint(); }

int fittingHeight(HDC dc, const GridScene& scene, const CGXRange& cells) {
    const CGXStyle style = scene.grid.table().style(cells.top, cells.left);
    const TrackSizes& widths = scene.cols.sizes();
    const int64_t wide = widths.offset(cells.right + 1) - widths.offset(cells.left);
    const CString text = shownText(style);
    const bool wraps = style.look().wrap.value_or(false);
    const int width = wraps ? scene.cols.scaled(wide) - 2 * scene.look.margin() : UNBROKEN;
    return scene.look.wrappedHeight(dc, text, width) + 3;
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
