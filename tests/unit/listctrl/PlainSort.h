// The sort of a list control's column done the long way: cell by cell, each compared anew. It is what the
// product's sort must come out like.
#pragma once

#include <numeric>
#include <string>
#include <vector>

#include "src/listctrl/CellOrder.h"

class PlainSort {
  public:
    PlainSort(const std::vector<std::wstring>& cells, bool ascending, DistanceParser parse)
        : m_cells(cells), m_order(cells.size()), m_ascending(ascending), m_parse(std::move(parse)) {
        std::iota(m_order.begin(), m_order.end(), 0);
        sort(0, static_cast<int>(cells.size()) - 1);
    }

    // For each row, which row's content it gets.
    const std::vector<int>& order() const { return m_order; }

  private:
    static int kindOf(const std::wstring& text) {
        if (text.find_first_of(L"0123456789.-") == std::wstring::npos) return -1;
        int kind = -1;
        for (const wchar_t c : text) {
            const auto isOneOf = [c](const std::wstring& set) { return set.find(c) != std::wstring::npos; };
            if (isOneOf(L"0123456789.-"))
                kind = 1;
            else if (isOneOf(L"0123456789./' \"-"))
                kind = c == L'/' ? 3 : 2;
            else if (isOneOf(L"Ee+0123456789.-"))
                kind = 5;
            else
                return -1;
        }
        return kind;
    }

    bool isLess(int a, int b) const {
        const int kindA = kindOf(m_cells[a]);
        const int kindB = kindOf(m_cells[b]);
        if (kindA == -1 || kindB == -1) return m_cells[a].compare(m_cells[b]) < 0;
        const int units[] = {0, 2, 3, 1, 4, 5};
        const auto valueA = m_parse(m_cells[a].c_str(), units[kindA]);
        const auto valueB = m_parse(m_cells[b].c_str(), units[kindB]);
        if (!valueA || !valueB) return false;
        return *valueA < *valueB;
    }

    void sort(int lo, int hi) {
        if (hi <= lo) return;
        const int p = (lo + hi) / 2;
        int i = lo;
        int j = hi;
        while (i <= j) {
            if (m_ascending) {
                while (i < hi && isLess(i, p)) i = i + 1;
                while (j > lo && isLess(p, j)) j = j - 1;
            } else {
                while (i < hi && isLess(p, i)) i = i + 1;
                while (j > lo && isLess(j, p)) j = j - 1;
            }
            if (i <= j) {
                if (m_cells[i] != m_cells[j]) {
                    std::swap(m_cells[i], m_cells[j]);
                    std::swap(m_order[i], m_order[j]);
                }
                i = i + 1;
                j = j - 1;
            }
        }
        if (lo < j) sort(lo, j);
        if (i < hi) sort(i, hi);
    }

    std::vector<std::wstring> m_cells;
    std::vector<int> m_order;
    bool m_ascending;
    DistanceParser m_parse;
};
