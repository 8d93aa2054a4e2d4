// Random tables: nothing leaves its cell.
#include <gtest/gtest.h>

#include <random>

#include "tests/unit/report/CellCheck.h"

namespace {

class RandomReport {
  public:
    explicit RandomReport(unsigned seed) : m_random(seed) {}

    int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }

    ReportRows rows() {
        std::vector<double> widths(1 + below(50));
        for (double& width : widths) width = below(4) ? below(100) / 400.0 : below(100) / 100000.0;
        ReportRows rows;
        for (int row = below(20); row >= 0; --row) {
            std::vector<std::wstring> texts;
            for (size_t column = 0; column < widths.size(); ++column) texts.push_back(text());
            rows.push_back(reportRow(texts, widths));
        }
        return rows;
    }

  private:
    std::wstring text() {
        std::wstring text(below(3) ? below(20) : below(60) ? 0 : below(3000), L' ');
        for (wchar_t& letter : text)
            letter = below(5) ? static_cast<wchar_t>(1 + below(0xFFFF)) : L"\n\t &"[below(4)];
        return text;
    }

    std::mt19937 m_random;
};

TEST(RandomReports, StayInTheirCells) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        RandomReport random(seed);
        const int dpi = (const int[]){96, 144, 192, 300, 600}[random.below(5)];
        const ReportRows rows = random.rows();
        Record record(dpi, dpi / 7, dpi / 14);
        drawReportTable(record, rows, {8, 4, 8 + 8 * dpi, 11 * dpi}, random.below(500));
        ASSERT_TRUE(textsStayInCells(record.drawn, rows)) << "seed " << seed;
    }
}

TEST(RandomReports, TheCheckSeesATextThatLeavesItsCell) {
    ReportRows rows;
    rows.push_back(reportRow({L"text"}, {0.5}));
    Record record(96, 14);
    drawReportTable(record, rows, {0, 0, 800, 1100}, 0);
    ASSERT_TRUE(textsStayInCells(record.drawn, rows));
    ++record.drawn[1].rect.right;
    EXPECT_TRUE(textsStayInCells(record.drawn, rows)) << "there is room for the pad";
    record.drawn[1].rect.right += 6;
    EXPECT_FALSE(textsStayInCells(record.drawn, rows));
}

}  // namespace
