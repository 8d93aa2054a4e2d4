#include "src/listctrl/CellOrder.h"

#include <cstdint>
#include <numeric>
#include <type_traits>
#include <utility>

#include "src/listctrl/CellKind.h"

namespace {

struct Cell {
    const CString& text;
    uint64_t head;  // of the text: two texts whose heads differ compare as the heads do
    bool isText;
    std::optional<double> distance;
};

// The first code units, the first one highest, with zeros behind a short text.
uint64_t headOf(const CString& text) {
    constexpr int BITS = 8 * sizeof(wchar_t);
    uint64_t head = 0;
    for (size_t at = 0; at < sizeof(head) / sizeof(wchar_t); ++at)
        head = head << BITS | (at < text.size() ? static_cast<std::make_unsigned_t<wchar_t>>(text[at]) : 0);
    return head;
}

Cell readCell(const CString& text, const DistanceParser& parse) {
    const CellKind kind = cellKindOf(text);
    if (kind == CellKind::text) return {text, headOf(text), true, std::nullopt};
    return {text, headOf(text), false, parse(text, linearUnitOf(kind))};
}

bool isLess(const Cell& a, const Cell& b) {
    if (a.isText || b.isText) return a.head != b.head ? a.head < b.head : a.text < b.text;
    return a.distance && b.distance && *a.distance < *b.distance;
}

bool isSameText(const Cell& a, const Cell& b) { return a.head == b.head && a.text == b.text; }

class CellSort {
  public:
    CellSort(std::span<const CString> texts, bool ascending, const DistanceParser& parse)
        : m_ascending(ascending), m_order(texts.size()) {
        m_cells.reserve(texts.size());
        for (const CString& text : texts) m_cells.push_back(readCell(text, parse));
        std::iota(m_order.begin(), m_order.end(), 0);
    }

    std::vector<int> run() && {
        // Bad data can nest the ranges as deep as there are rows. Ranges are disjoint, so their order doesn't
        // matter.
        std::vector<Range> open{{0, static_cast<int>(m_order.size()) - 1}};
        while (!open.empty()) {
            const Range range = open.back();
            open.pop_back();
            if (range.first >= range.last) continue;
            const Range ends = partition(range);
            open.push_back({range.first, ends.first});
            open.push_back({ends.last, range.last});
        }
        return std::move(m_order);
    }

  private:
    struct Range {
        int first, last;
    };

    const Cell& at(int row) const { return m_cells[m_order[row]]; }
    bool goesBefore(int row, int other) const {
        return m_ascending ? isLess(at(row), at(other)) : isLess(at(other), at(row));
    }

    // The end of the left part and the start of the right one.
    Range partition(Range range) {
        // kept: the pivot is a place, not a value. An exchange that moves its row changes what the others are
        // compared with.
        const int pivot = (range.first + range.last) / 2;
        int i = range.first;
        int j = range.last;
        while (i <= j) {
            while (i < range.last && goesBefore(i, pivot)) ++i;
            while (j > range.first && goesBefore(pivot, j)) --j;
            if (i > j) break;
            if (!isSameText(at(i), at(j))) std::swap(m_order[i], m_order[j]);
            ++i;
            --j;
        }
        return {j, i};
    }

    bool m_ascending;
    std::vector<Cell> m_cells;
    std::vector<int> m_order;
};

}  // namespace

std::vector<int> sortedOrder(std::span<const CString> cells, bool ascending, const DistanceParser& parse) {
    return CellSort(cells, ascending, parse).run();
}
