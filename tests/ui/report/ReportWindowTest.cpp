// Reports drawn at the resolution of a printer, and with texts for which there is no room.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "src/report/GdiReportSurface.h"
#include "src/report/ReportDrawing.h"
#include "tests/support/Canvas.h"

namespace {

// White paper.
class Picture : public Canvas {
  public:
    Picture(int width, int height) : Canvas(width, height), m_width(width), m_height(height) {
        const RECT all{0, 0, width, height};
        FillRect(dc(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }

    bool isWhite(int x, int y) const { return at(x, y) == RGB(255, 255, 255); }
    // Whether a rectangle has nothing but white dots.
    bool isBlank(const PixelRect& rect) const {
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                if (!isWhite(x, y)) return false;
        return true;
    }
    void write(const char* path) const {
        std::FILE* file = std::fopen(path, "wb");
        ASSERT_TRUE(file);
        std::fprintf(file, "P5\n%d %d\n255\n", m_width, m_height);
        for (const uint32_t dot : dots()) std::fputc(static_cast<int>(dot & 0xFF), file);
        std::fclose(file);
    }

  private:
    int m_width, m_height;
};

// The platform's pictures have the resolution of the screen; this surface has that of a printer.
class FineSurface : public GdiReportSurface {
  public:
    FineSurface(HDC dc, int dpi, HFONT normal, HFONT bold) : GdiReportSurface(dc, normal, bold), m_dpi(dpi) {}
    int dpiX() const override { return m_dpi; }
    int dpiY() const override { return m_dpi; }

  private:
    int m_dpi;
};

void drawFine(const Picture& picture, int dpi, const ReportRows& rows, const PixelRect& page) {
    const UniqueFont normal = makeReportFont(dpi, ReportFont::normal);
    const UniqueFont bold = makeReportFont(dpi, ReportFont::bold);
    FineSurface surface(picture.dc(), dpi, normal.get(), bold.get());
    drawReportTable(surface, rows, page, 0);
    drawReportFooter(surface, page, 0, L"");
}

// With WEX_PAGE, the page is written into that file too, for a comparison with what a printer makes of it.
TEST(ReportSurface, DrawnFineThePageHasItsLinesWhereTheyBelong) {
    const Picture picture(2479, 3508);
    drawFine(picture, 300, sampleReport(), {0, 0, 2479, 3508});
    for (const int x : {150, 447, 744, 1041, 1338, 1957}) EXPECT_FALSE(picture.isWhite(x, 152)) << x;
    EXPECT_TRUE(picture.isBlank({0, 0, 2479, 150}));
    EXPECT_TRUE(picture.isBlank({0, 0, 150, 3508}));
    EXPECT_TRUE(picture.isBlank({1958, 150, 2479, 3300}));
    if (const char* path = std::getenv("WEX_PAGE")) picture.write(path);
}

TEST(ReportSurface, TextsStayInNarrowCellsAndInCellsThatAreNone) {
    std::wstring text(20000, L'W');
    for (size_t at = 0; at < text.size(); at += 7) text[at] = L" \n\u05D0\u4E00\xD800\u200D\t"[at % 7];
    for (const double width : {0.0, 0.001, 0.01, 0.1}) {
        const int columns = width < 0.05 ? 50 : 8;
        ReportRows rows;
        rows.push_back(
            reportRow(std::vector<std::wstring>(columns, text), std::vector<double>(columns, width)));
        const Picture picture(800, 1100);
        drawFine(picture, 96, rows, {0, 0, 800, 1000});
        int right = 48;
        for (int column = 0; column < columns; ++column) right = static_cast<int>(800 * width + right);
        EXPECT_TRUE(picture.isBlank({right + 1, 0, 800, 940})) << width;
        EXPECT_TRUE(picture.isBlank({0, 0, 48, 940})) << width;
        EXPECT_TRUE(picture.isBlank({0, 48 + 302, 47, 940})) << width;
    }
}

}  // namespace
