// Draws a report's table on a page, on whatever surface: a screen, a printer, or a test's record. Portable.
#pragma once

#include <string>

#include "src/platform/base/PixelRect.h"
#include "src/report/ReportTable.h"

enum class ReportFont { normal, bold };

// What the drawing asks of a device. All lengths are in its own units.
class ReportSurface {
  public:
    virtual ~ReportSurface() = default;

    // Dots per inch.
    virtual int dpiX() const = 0;
    virtual int dpiY() const = 0;

    virtual void useFont(ReportFont font) = 0;
    // Draws the text in black, broken at words and at "\n", and cut off at the rectangle's edges. Gives the
    // height of its lines.
    virtual int drawText(const std::wstring& text, const PixelRect& rect) = 0;

    // Lines are black, one unit wide, and without their last point.
    virtual void moveTo(int x, int y) = 0;
    virtual void lineTo(int x, int y) = 0;
    virtual void setPixel(int x, int y) = 0;
};

// Draws all rows, moved up by `offset`. There is one page, and rows that have no room run over its lower
// edge.
void drawReportTable(ReportSurface& surface, const ReportRows& rows, const PixelRect& page, int offset);

// Draws the date and the page's number at the page's foot, in the font that was used last.
void drawReportFooter(ReportSurface& surface, const PixelRect& page, int offset, const std::wstring& date);
