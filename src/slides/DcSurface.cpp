#include "src/slides/DcSurface.h"

#include <cstddef>

namespace {

// The platform takes arrays of our points as they are.
static_assert(sizeof(SlidePoint) == sizeof(POINT) && offsetof(SlidePoint, y) == offsetof(POINT, y) &&
              sizeof(SlidePoint::x) == sizeof(POINT::x));

POINT* asPoints(std::span<SlidePoint> points) { return reinterpret_cast<POINT*>(points.data()); }
int countOf(std::span<const SlidePoint> points) { return static_cast<int>(points.size()); }

// `tool`, or the platform's own in its place.
SlideTool select(HDC dc, SlideTool tool, int stock) {
    return ::SelectObject(dc, tool ? static_cast<HGDIOBJ>(tool) : ::GetStockObject(stock));
}

// Knows nothing of a metafile, and of a context that also turns or shears.
PixelGrid gridOf(HDC dc) {
    SIZE window, viewport;
    if (::GetObjectType(dc) == OBJ_METADC || ::GetGraphicsMode(dc) != GM_COMPATIBLE ||
        !::GetWindowExtEx(dc, &window) || !::GetViewportExtEx(dc, &viewport))
        return {};
    return {{window.cx, window.cy}, {viewport.cx, viewport.cy}};
}

}  // namespace

void DcSurface::SetMapMode(SlideMapMode mode) {
    ::SetMapMode(m_dc, static_cast<int>(mode));
    m_grid.reset();
}

void DcSurface::SetWindowExt(SlideSize extent) {
    ::SetWindowExtEx(m_dc, extent.cx, extent.cy, nullptr);
    m_grid.reset();
}

void DcSurface::SetViewportExt(SlideSize extent) {
    ::SetViewportExtEx(m_dc, extent.cx, extent.cy, nullptr);
    m_grid.reset();
}

void DcSurface::SetViewportOrg(SlidePoint origin) { ::SetViewportOrgEx(m_dc, origin.x, origin.y, nullptr); }

SlideSize DcSurface::GetViewportExt() {
    SIZE extent{};
    ::GetViewportExtEx(m_dc, &extent);
    return {extent.cx, extent.cy};
}

void DcSurface::SetBkColor(uint32_t color) { ::SetBkColor(m_dc, color); }

uint32_t DcSurface::SetTextColor(uint32_t color) { return ::SetTextColor(m_dc, color); }

uint32_t DcSurface::GetTextColor() { return ::GetTextColor(m_dc); }

bool DcSurface::AreApart(SlidePoint a, SlidePoint b) {
    if (!m_grid) m_grid = gridOf(m_dc);
    return m_grid->areApart(a, b);
}

bool DcSurface::LPtoDP(std::span<SlidePoint> points) {
    return ::LPtoDP(m_dc, asPoints(points), countOf(points)) != FALSE;
}

bool DcSurface::DPtoLP(std::span<SlidePoint> points) {
    return ::DPtoLP(m_dc, asPoints(points), countOf(points)) != FALSE;
}

void DcSurface::MoveTo(SlidePoint to) { ::MoveToEx(m_dc, to.x, to.y, nullptr); }

void DcSurface::LineTo(SlidePoint to) { ::LineTo(m_dc, to.x, to.y); }

void DcSurface::SetPolyFillMode(int32_t mode) { ::SetPolyFillMode(m_dc, mode); }

void DcSurface::Polygon(std::span<const SlidePoint> points) {
    ::Polygon(m_dc, reinterpret_cast<const POINT*>(points.data()), countOf(points));
}

SlideTool DcSurface::CreatePen(uint32_t color) { return ::CreatePen(PS_SOLID, 1, color); }

SlideTool DcSurface::CreateBrush(uint32_t color) { return ::CreateSolidBrush(color); }

SlideTool DcSurface::SelectPen(SlideTool pen) { return select(m_dc, pen, BLACK_PEN); }

SlideTool DcSurface::SelectBrush(SlideTool brush) { return select(m_dc, brush, WHITE_BRUSH); }

void DcSurface::Destroy(SlideTool tool) { ::DeleteObject(tool); }
