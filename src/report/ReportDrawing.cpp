#include "src/report/ReportDrawing.h"

#include <algorithm>

namespace {

// As inches, but for the last. kept: a cell's text is cut off so many units below the row's top on every
// device, also where that is less than a line.
constexpr double MARGIN = 0.5;
constexpr double PAD_TOP = 0.03125;
constexpr double PAD_LEFT = 0.041666;
constexpr double ROW_PAD = 0.052083;
constexpr double PAD_RIGHT = 0.0625;
constexpr double FOOTER = 1.0416;
constexpr int TEXT_ROOM = 300;

// kept: how wide the page's label is, in footer lengths.
constexpr double LABEL_WIDTH = 1.15;

// Widths come from outside: what no device has ends at a limit far from overflow.
int truncated(double length) {
    constexpr double LIMIT = 1e8;
    return length > -LIMIT ? static_cast<int>(std::min(length, LIMIT)) : static_cast<int>(-LIMIT);
}

class PageDrawing {
  public:
    PageDrawing(ReportSurface& surface, const PixelRect& page, int offset)
        : m_surface(surface),
          m_offset(offset),
          m_width(page.width()),
          m_left(page.left + truncated(surface.dpiX() * MARGIN)),
          m_right(page.right - truncated(surface.dpiX() * MARGIN)),
          m_top(page.top + truncated(surface.dpiY() * MARGIN) - offset),
          m_bottom(page.bottom - truncated(surface.dpiY() * MARGIN)),
          m_padTop(truncated(surface.dpiY() * PAD_TOP)),
          m_padLeft(truncated(surface.dpiY() * PAD_LEFT)),
          m_rowPad(truncated(surface.dpiY() * ROW_PAD)),
          m_padRight(truncated(surface.dpiY() * PAD_RIGHT)) {}

    // Each cell draws its right and its bottom edge; the table's others come last.
    void drawTable(const ReportRows& rows) {
        int y = m_top;
        int right = m_right;
        m_surface.useFont(ReportFont::bold);
        for (const auto& row : rows) {
            const int bottom = y + m_rowPad + drawTexts(*row, y);
            right = drawEdges(*row, y, bottom);
            y = bottom;
            m_surface.useFont(ReportFont::normal);
        }
        m_surface.moveTo(right, m_top);
        m_surface.lineTo(m_left, m_top);
        m_surface.lineTo(m_left, y);
        m_surface.setPixel(m_left, y);
    }

    // kept: the date's right edge counts from the device's, and the lower edges don't scroll.
    void drawFooter(const std::wstring& date) const {
        const int footer = truncated(m_surface.dpiY() * FOOTER);
        const int top = m_bottom - 2 * m_padRight - m_offset;
        m_surface.drawText(date, {m_left, top, 2 * footer, m_bottom});
        m_surface.drawText(L"Page 1", {truncated(m_right - footer * LABEL_WIDTH), top, m_right, m_bottom});
    }

  private:
    int columnEnd(int x, const WexCellData& cell) const { return truncated(m_width * cell.m_width + x); }

    // Gives the height of the highest text.
    int drawTexts(const WexRowData& row, int y) const {
        int x = m_left;
        int height = 0;
        for (const auto& cell : row.m_cells) {
            const int right = truncated(m_width * cell->m_width + x - m_padRight);
            const PixelRect rect{x + m_padLeft, y + m_padTop, right, y + TEXT_ROOM};
            height = std::max(height, m_surface.drawText(cell->m_text, rect));
            x = columnEnd(x, *cell);
        }
        return height;
    }

    // Gives the right end of the row.
    int drawEdges(const WexRowData& row, int y, int bottom) const {
        int x = m_left;
        for (const auto& cell : row.m_cells) {
            const int right = columnEnd(x, *cell);
            m_surface.moveTo(right, y);
            m_surface.lineTo(right, bottom);
            m_surface.lineTo(x, bottom);
            x = right;
        }
        return x;
    }

    ReportSurface& m_surface;
    const int m_offset;
    const int m_width;
    const int m_left, m_right, m_top, m_bottom;  // the page within its margins; the top moves with the offset
    const int m_padTop, m_padLeft, m_rowPad, m_padRight;
};

}  // namespace

void drawReportTable(ReportSurface& surface, const ReportRows& rows, const PixelRect& page, int offset) {
    PageDrawing(surface, page, offset).drawTable(rows);
}

void drawReportFooter(ReportSurface& surface, const PixelRect& page, int offset, const std::wstring& date) {
    PageDrawing(surface, page, offset).drawFooter(date);
}
