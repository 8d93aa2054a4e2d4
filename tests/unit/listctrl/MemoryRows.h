// The plain sort of one column in memory.
#pragma once

#include <numeric>

#include "host/units/LinearUnits.h"
#include "src/platform/base/CString.h"
#include "tests/unit/listctrl/PlainSort.h"

// The data of a row is its number at the start.
class MemoryRows : public PlainRows {
  public:
    explicit MemoryRows(const std::vector<CString>& cells) : m_cells(cells), m_numbers(cells.size()) {
        std::iota(m_numbers.begin(), m_numbers.end(), 0);
    }

    int rowCount() const override { return static_cast<int>(m_cells.size()); }
    int columnCount() const override { return 1; }
    PlainCell cell(int row, int) const override { return {m_cells[row], 0}; }
    void setCell(int row, int, const PlainCell& cell) override { m_cells[row] = cell.text; }
    PlainRowData rowData(int row) const override { return {0, 0, m_numbers[row]}; }
    void setRowData(int row, const PlainRowData& data) override {
        m_numbers[row] = static_cast<int>(data.data);
    }

    const std::vector<int>& order() const { return m_numbers; }

  private:
    std::vector<CString> m_cells;
    std::vector<int> m_numbers;
};

inline std::optional<double> parseDistance(const std::wstring& text, int unit) {
    return units::distanceFromText(text, unit);
}

inline std::vector<int> plainOrder(const std::vector<CString>& cells, bool ascending,
                                   const PlainSort::Parser& parse = parseDistance) {
    MemoryRows rows(cells);
    PlainSort(rows, 0, ascending, parse).run();
    return rows.order();
}
