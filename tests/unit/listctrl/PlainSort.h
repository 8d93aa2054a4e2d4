// The sort of a list control done the long way: cell by cell, on any store of rows, everything read anew each
// time. It is what the product's sort must come out like.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

struct PlainCell {
    std::wstring text;
    int image;
};

// What belongs to a row and not to a cell.
struct PlainRowData {
    int image;
    uint32_t state;
    intptr_t data;
};

class PlainRows {
  public:
    virtual ~PlainRows() = default;

    virtual int rowCount() const = 0;
    virtual int columnCount() const = 0;
    virtual PlainCell cell(int row, int column) const = 0;
    // Column 0 takes the text alone; its image belongs to the row.
    virtual void setCell(int row, int column, const PlainCell& cell) = 0;
    virtual PlainRowData rowData(int row) const = 0;
    virtual void setRowData(int row, const PlainRowData& data) = 0;
};

class PlainSort {
  public:
    using Parser = std::function<std::optional<double>(const std::wstring& text, int unit)>;

    PlainSort(PlainRows& rows, int column, bool ascending, Parser parse)
        : m_rows(rows), m_column(column), m_ascending(ascending), m_parse(std::move(parse)) {}

    void run() {
        if (m_column < m_rows.columnCount()) sort(0, m_rows.rowCount() - 1);
    }

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

  private:
    std::wstring key(int row) const { return m_rows.cell(row, m_column).text; }

    bool isLess(int a, int b) const {
        const int kindA = kindOf(key(a));
        const int kindB = kindOf(key(b));
        if (kindA == -1 || kindB == -1) return key(a).compare(key(b)) < 0;
        const int units[] = {0, 2, 3, 1, 4, 5};
        const auto valueA = m_parse(key(a), units[kindA]);
        const auto valueB = m_parse(key(b), units[kindB]);
        if (!valueA || !valueB) return false;
        return *valueA < *valueB;
    }

    void exchange(int i, int j) {
        std::vector<PlainCell> kept;
        for (int column = 0; column < m_rows.columnCount(); ++column) kept.push_back(m_rows.cell(i, column));
        const PlainRowData keptData = m_rows.rowData(i);
        const PlainRowData otherData = m_rows.rowData(j);
        for (int column = 0; column < m_rows.columnCount(); ++column)
            m_rows.setCell(i, column, m_rows.cell(j, column));
        m_rows.setRowData(i, otherData);
        for (int column = 0; column < m_rows.columnCount(); ++column) m_rows.setCell(j, column, kept[column]);
        m_rows.setRowData(j, keptData);
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
                if (key(i) != key(j)) exchange(i, j);
                i = i + 1;
                j = j - 1;
            }
        }
        if (lo < j) sort(lo, j);
        if (i < hi) sort(i, hi);
    }

    PlainRows& m_rows;
    int m_column;
    bool m_ascending;
    Parser m_parse;
};
