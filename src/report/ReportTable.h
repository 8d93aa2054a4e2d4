// The table that a report shows: rows of cells. Portable.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "src/platform/base/CObject.h"
#include "src/platform/base/CString.h"

struct WexCellData : CObject {
    WexCellData(std::wstring_view text, double width) : m_text(text), m_width(width) {}

    CString m_text;         // "\n" breaks lines
    int32_t m_format = 16;  // the platform's DT_WORDBREAK; kept, and not read
    double m_width;         // of the column, as a fraction of the page's width
};

struct WexRowData : CObject {
    std::vector<std::unique_ptr<WexCellData>> m_cells;
};

// Every row has the cells of all columns, and each cell its column's width.
using ReportRows = std::vector<std::unique_ptr<WexRowData>>;

// A row of those texts in columns of those widths; a text without a width is left out.
std::unique_ptr<WexRowData> reportRow(const std::vector<std::wstring>& texts,
                                      const std::vector<double>& widths);

// One row of titles and 17 rows of cells, in five columns.
ReportRows sampleReport();
