#include "src/listctrl/CellOrder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "src/listctrl/CellKind.h"

namespace {

// The first code units of a text, the first one highest, with zeros behind a short text. Two texts whose
// heads differ compare as the heads do.
using Head = std::array<uint64_t, 2>;

struct Cell {
    Head head;
    double distance;  // not a number, which is less than nothing, where there is none
    int row;
    bool isText;
};

Head headOf(std::wstring_view text) {
    constexpr size_t UNITS = sizeof(uint64_t) / sizeof(wchar_t);
    Head head{};
    for (size_t at = 0; at < 2 * UNITS; ++at) {
        uint64_t& part = head[at / UNITS];
        part = part << 8 * sizeof(wchar_t);
        if (at < text.size()) part |= static_cast<std::make_unsigned_t<wchar_t>>(text[at]);
    }
    return head;
}

class CellSort {
  public:
    CellSort(std::span<const std::wstring_view> texts, bool ascending, const DistanceParser& parse)
        : m_texts(texts), m_ascending(ascending) {
        m_cells.reserve(texts.size());
        for (const std::wstring_view text : texts) {
            const CellKind kind = cellKindOf(text);
            const bool isText = kind == CellKind::text;
            const auto distance = isText ? std::nullopt : parse(text.data(), linearUnitOf(kind));
            m_cells.push_back(
                {headOf(text), distance.value_or(NAN), static_cast<int>(m_cells.size()), isText});
        }
    }

    std::vector<int> run() && {
        // Bad data can nest the ranges as deep as there are rows. Ranges are disjoint, so their order doesn't
        // matter.
        std::vector<Range> open{{0, static_cast<int>(m_cells.size()) - 1}};
        while (!open.empty()) {
            const Range range = open.back();
            open.pop_back();
            if (range.first >= range.last) continue;
            const Range ends = partition(range);
            open.push_back({range.first, ends.first});
            open.push_back({ends.last, range.last});
        }
        std::vector<int> order(m_cells.size());
        std::transform(m_cells.begin(), m_cells.end(), order.begin(),
                       [](const Cell& cell) { return cell.row; });
        return order;
    }

  private:
    struct Range {
        int first, last;
    };

    bool isTextLess(const Cell& a, const Cell& b) const {
        return a.head != b.head ? a.head < b.head : m_texts[a.row] < m_texts[b.row];
    }
    bool isSameText(const Cell& a, const Cell& b) const {
        return a.head == b.head && m_texts[a.row] == m_texts[b.row];
    }
    bool isLess(const Cell& a, const Cell& b) const {
        return a.isText || b.isText ? isTextLess(a, b) : a.distance < b.distance;
    }
    bool goesBefore(const Cell& cell, const Cell& other) const {
        return m_ascending ? isLess(cell, other) : isLess(other, cell);
    }

    // The end of the left part and the start of the right one.
    Range partition(Range range) {
        // kept: the pivot is a place, not a value. An exchange that moves its row changes what the others are
        // compared with.
        const Cell& pivot = m_cells[(range.first + range.last) / 2];
        int i = range.first;
        int j = range.last;
        while (i <= j) {
            while (i < range.last && goesBefore(m_cells[i], pivot)) ++i;
            while (j > range.first && goesBefore(pivot, m_cells[j])) --j;
            if (i > j) break;
            if (!isSameText(m_cells[i], m_cells[j])) std::swap(m_cells[i], m_cells[j]);
            ++i;
            --j;
        }
        return {j, i};
    }

    std::span<const std::wstring_view> m_texts;
    bool m_ascending;
    std::vector<Cell> m_cells;
};

}  // namespace

std::vector<int> sortedOrder(std::span<const std::wstring_view> cells, bool ascending,
                             const DistanceParser& parse) {
    return CellSort(cells, ascending, parse).run();
}
