// The platform's devices as surfaces for reports.
#pragma once

#include "src/platform/mfc/Drawing.h"
#include "src/report/ReportDrawing.h"

// The device context and the fonts are borrowed, and as they were when the object goes.
class GdiReportSurface : public ReportSurface {
  public:
    GdiReportSurface(HDC dc, HFONT normal, HFONT bold);
    ~GdiReportSurface() override { ::RestoreDC(m_dc, m_saved); }
    GdiReportSurface(const GdiReportSurface&) = delete;
    GdiReportSurface& operator=(const GdiReportSurface&) = delete;

    int dpiX() const override { return GetDeviceCaps(m_dc, LOGPIXELSX); }
    int dpiY() const override { return GetDeviceCaps(m_dc, LOGPIXELSY); }
    void useFont(ReportFont font) override;
    int drawText(const std::wstring& text, const PixelRect& rect) override;
    void moveTo(int x, int y) override { ::MoveToEx(m_dc, x, y, nullptr); }
    void lineTo(int x, int y) override { ::LineTo(m_dc, x, y); }
    void setPixel(int x, int y) override { ::SetPixel(m_dc, x, y, RGB(0, 0, 0)); }

  private:
    HDC m_dc;
    HFONT m_normal, m_bold;
    UniquePen m_pen;
    int m_saved;
};

// A font in which reports are written, 8 points high on a device of that many dots per inch.
UniqueFont makeReportFont(int dpiY, ReportFont font);
