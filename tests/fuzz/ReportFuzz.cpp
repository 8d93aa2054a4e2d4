// Any table is drawn to its end, and its texts stay in their cells.
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "tests/unit/report/CellCheck.h"

namespace {

class Bytes {
  public:
    Bytes(const uint8_t* data, size_t size) : m_at(data), m_end(data + size) {}

    bool left() const { return m_at != m_end; }
    template <class Number>
    Number next() {
        Number number{};
        const size_t count = std::min(sizeof number, static_cast<size_t>(m_end - m_at));
        std::memcpy(&number, m_at, count);
        m_at += count;
        return number;
    }

  private:
    const uint8_t *m_at, *m_end;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Bytes bytes(data, size);
    const int dpi = 50 + bytes.next<uint16_t>() % 1200;
    const int offset = bytes.next<int16_t>();
    // A width that is none is drawn too, but then there are no cells to stay in.
    bool hasCells = true;
    std::vector<double> widths(1 + bytes.next<uint8_t>() % 50);
    for (double& width : widths) {
        width = bytes.next<double>();
        hasCells = hasCells && width >= 0 && width <= 4;
    }
    ReportRows rows;
    while (bytes.left()) {
        std::vector<std::wstring> texts(widths.size());
        for (std::wstring& text : texts)
            for (int count = bytes.next<uint8_t>(); count > 0 && bytes.left(); --count)
                text += static_cast<wchar_t>(bytes.next<uint16_t>());
        rows.push_back(reportRow(texts, widths));
    }
    Record record(dpi, dpi / 7, dpi / 14);
    drawReportTable(record, rows, {8, 4, 8 + 8 * dpi, 11 * dpi}, offset);
    if (hasCells && !textsStayInCells(record.drawn, rows)) std::abort();
    return 0;
}
