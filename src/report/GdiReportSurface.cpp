#include "src/report/GdiReportSurface.h"

namespace {

constexpr int FONT_POINTS = 8, POINTS_PER_INCH = 72;

}  // namespace

UniqueFont makeReportFont(int dpiY, ReportFont font) {
    LOGFONTW request{};
    request.lfHeight = -MulDiv(FONT_POINTS, dpiY, POINTS_PER_INCH);
    request.lfWeight = font == ReportFont::bold ? FW_BOLD : FW_NORMAL;
    request.lfCharSet = DEFAULT_CHARSET;
    lstrcpyW(request.lfFaceName, L"Arial");
    return UniqueFont(CreateFontIndirectW(&request));
}

GdiReportSurface::GdiReportSurface(HDC dc, HFONT normal, HFONT bold)
    : m_dc(dc),
      m_normal(normal),
      m_bold(bold),
      m_pen(CreatePen(PS_SOLID, 1, RGB(0, 0, 0))),
      m_saved(SaveDC(dc)) {
    SelectObject(dc, m_pen.get());
    SetTextColor(dc, RGB(0, 0, 0));
    SetBkColor(dc, RGB(255, 255, 255));
}

void GdiReportSurface::useFont(ReportFont font) {
    SelectObject(m_dc, font == ReportFont::bold ? m_bold : m_normal);
}

int GdiReportSurface::drawText(const std::wstring& text, const PixelRect& rect) {
    RECT room{rect.left, rect.top, rect.right, rect.bottom};
    return DrawTextW(m_dc, text.c_str(), static_cast<int>(text.size()), &room, DT_WORDBREAK);
}
