// The sample report on pages of two resolutions, against numbers that were worked out by hand.
#include <gtest/gtest.h>

#include "src/platform/base/CInvalidArgException.h"
#include "src/report/ReportDate.h"
#include "tests/unit/report/Record.h"

namespace {

// The numbers of a page. Columns have the left edges of `columns`, and the last of these is the table's right
// edge; the texts of a column end at `textRights`. Tops are the upper edges of the first two rows, and the
// lower edge of the last one.
struct Page {
    int dpi, lineHeight;
    PixelRect page;
    int columns[6];
    int textRights[5];
    int firstRow, secondRow, rowHeight, end;
    int padLeft, padTop;
    PixelRect date, label;
};

// At 96 dpi a page's width is 538 - 8 = 530, its left margin 8 + 48 and its top one 4 + 48. A column of 0.12
// is 63.6 wide: 56 + 63.6 = 119.6, 119 + 63.6 = 182.6 and so on, each cut to whole pixels. The first row is 4
// higher than its line of 14, the others than their three lines.
constexpr Page SCREEN = {
    96, 14, {8, 4, 538, 820},    {56, 119, 182, 245, 308, 440}, {113, 176, 239, 302, 434}, 52, 70, 46, 852,
    3,  3,  {56, 760, 198, 772}, {376, 760, 490, 772}};
// A4: margins of 150; 0.12 * 2479 = 297.48 and 0.25 * 2479 = 619.75; rows 15 higher than their lines of 42.
constexpr Page PRINTER = {300,
                          42,
                          {0, 0, 2479, 3508},
                          {150, 447, 744, 1041, 1338, 1957},
                          {429, 726, 1023, 1320, 1939},
                          150,
                          207,
                          141,
                          2604,
                          12,
                          9,
                          {150, 3322, 624, 3358},
                          {1970, 3322, 2329, 3358}};
void addRow(std::vector<Drawn>& drawn, const Page& page, int y, int bottom,
            const std::vector<std::wstring>& texts) {
    for (int i = 0; i < 5; ++i) {
        const int lines = 1 + static_cast<int>(std::count(texts[i].begin(), texts[i].end(), L'\n'));
        drawn.push_back({Drawn::text,
                         {page.columns[i] + page.padLeft, y + page.padTop, page.textRights[i], y + 300},
                         texts[i],
                         lines * page.lineHeight});
    }
    for (int i = 0; i < 5; ++i) {
        drawn.push_back({Drawn::move, {page.columns[i + 1], y}, {}});
        drawn.push_back({Drawn::line, {page.columns[i + 1], bottom}, {}});
        drawn.push_back({Drawn::line, {page.columns[i], bottom}, {}});
    }
    drawn.push_back({Drawn::font, {}, L"normal"});
}

std::vector<Drawn> wanted(const Page& page, int offset) {
    std::vector<Drawn> drawn{{Drawn::font, {}, L"bold"}};
    const int top = page.firstRow - offset, left = page.columns[0];
    addRow(drawn, page, top, page.secondRow - offset,
           {L"Title 1", L"Title 2", L"Title 3", L"Title 4", L"Title 5"});
    for (int row = 0; row < 17; ++row) {
        const int y = page.secondRow - offset + row * page.rowHeight;
        addRow(drawn, page, y, y + page.rowHeight,
               {L"Cell 1", L"Cell 2", L"Cell 3", L"Cell 4", L"Cell 5\ntest 1\ntest 2"});
    }
    drawn.push_back({Drawn::move, {page.columns[5], top}, {}});
    drawn.push_back({Drawn::line, {left, top}, {}});
    drawn.push_back({Drawn::line, {left, page.end - offset}, {}});
    drawn.push_back({Drawn::pixel, {left, page.end - offset}, {}});
    PixelRect date = page.date, label = page.label;
    date.top -= offset, label.top -= offset;
    drawn.push_back({Drawn::text, date, L"today", page.lineHeight});
    drawn.push_back({Drawn::text, label, L"Page 1", page.lineHeight});
    return drawn;
}

void expectDrawn(const Page& page, int offset) {
    Record record(page.dpi, page.lineHeight);
    drawReportTable(record, sampleReport(), page.page, offset);
    drawReportFooter(record, page.page, offset, L"today");
    const std::vector<Drawn> expected = wanted(page, offset);
    ASSERT_EQ(record.drawn.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(record.drawn[i], expected[i])
            << "step " << i << ": " << record.drawn[i].rect.left << ' ' << record.drawn[i].rect.top << ' '
            << record.drawn[i].rect.right << ' ' << record.drawn[i].rect.bottom;
}

TEST(ReportPage, IsDrawnAsWorkedOutByHand) {
    for (const Page* page : {&SCREEN, &PRINTER}) expectDrawn(*page, 0);
}

TEST(ReportPage, MovesUpByItsOffsetButForTheFootersLowerEdges) { expectDrawn(SCREEN, 50); }

TEST(ReportPage, WithoutRowsReachesTheRightMargin) {
    Record record(96, 14);
    drawReportTable(record, {}, SCREEN.page, 0);
    EXPECT_EQ(record.drawn[1], (Drawn{Drawn::move, {490, 52}, {}}));
    EXPECT_EQ(record.drawn[3], (Drawn{Drawn::line, {56, 52}, {}}));
}

TEST(ReportPage, TakesTheSideMarginsAloneFromTheResolutionAcross) {
    Record record(96, 14);
    record.dpiAcross = 200;
    drawReportTable(record, sampleReport(), SCREEN.page, 0);
    EXPECT_EQ(record.drawn[1].rect, (PixelRect{8 + 100 + 3, 55, 165, 352}));  // 63.6 + 108 - 6
    drawReportFooter(record, SCREEN.page, 0, L"");
    EXPECT_EQ(record.drawn.back().rect, (PixelRect{324, 760, 438, 772}));  // 438 - 99 * 1.15
}

TEST(ReportPage, ARowOfEmptyCellsIsAsHighAsItsPad) {
    ReportRows rows;
    rows.push_back(reportRow({L"", L""}, {0.5, 0.1}));
    Record record(96, 14);
    drawReportTable(record, rows, SCREEN.page, 0);
    EXPECT_EQ(record.drawn.at(4), (Drawn{Drawn::line, {321, 56}, {}}));
}

TEST(ReportDate, IsWrittenOutInEnglish) {
    std::tm day{};
    day.tm_year = 126, day.tm_mon = 2, day.tm_mday = 7, day.tm_hour = 12, day.tm_isdst = -1;
    EXPECT_EQ(reportDate(std::mktime(&day)), L"March 07, 2026");
    EXPECT_THROW(reportDate(INT64_MAX), CInvalidArgException);
}

}  // namespace
