#include "src/report/ReportTable.h"

#include <algorithm>

std::unique_ptr<WexRowData> reportRow(const std::vector<std::wstring>& texts,
                                      const std::vector<double>& widths) {
    auto row = std::make_unique<WexRowData>();
    for (size_t column = 0; column < std::min(texts.size(), widths.size()); ++column)
        row->m_cells.push_back(std::make_unique<WexCellData>(texts[column], widths[column]));
    return row;
}

ReportRows sampleReport() {
    constexpr int BODY_ROWS = 17;
    const std::vector<double> widths{0.12, 0.12, 0.12, 0.12, 0.25};
    ReportRows rows;
    rows.push_back(reportRow({L"Title 1", L"Title 2", L"Title 3", L"Title 4", L"Title 5"}, widths));
    for (int row = 0; row < BODY_ROWS; ++row)
        rows.push_back(
            reportRow({L"Cell 1", L"Cell 2", L"Cell 3", L"Cell 4", L"Cell 5\ntest 1\ntest 2"}, widths));
    return rows;
}
