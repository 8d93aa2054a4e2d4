// Random sessions of writes, clears, entries, undo and counts, against a plain array of texts.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "src/platform/gridlib/GridTable.h"

namespace {

class PlainTable {
  public:
    std::wstring& at(uint32_t row, uint32_t col) { return m_texts[{row, col}]; }
    void cut(uint32_t rows, uint32_t cols) {
        std::erase_if(m_texts,
                      [&](const auto& cell) { return cell.first.first > rows || cell.first.second > cols; });
    }

  private:
    std::map<std::pair<uint32_t, uint32_t>, std::wstring> m_texts;
};

class Session {
  public:
    explicit Session(unsigned seed) : m_random(seed) {}

    void step() {
        const uint32_t row = below(700), col = below(9);
        switch (below(8)) {
            case 0:
                resize();
                break;
            case 1:
                clear(CGXRange(row, col, row + below(300), col + below(3)));
                break;
            case 2:
            case 3:
                enter();
                break;
            case 4:
                for (const auto& at : m_table.undo())
                    m_plain.at(at.row, at.col) = m_table.value(at.row, at.col);
                break;
            default:
                write(row, col, text());
        }
    }

    void compare() {
        for (uint32_t row = 0; row <= m_table.rowCount() + 1; ++row)
            for (uint32_t col = 0; col <= m_table.colCount() + 1; ++col)
                ASSERT_EQ(m_table.value(row, col), m_plain.at(row, col)) << row << ' ' << col;
    }

  private:
    uint32_t below(uint32_t limit) { return static_cast<uint32_t>(m_random() % limit); }
    std::wstring text() {
        return std::wstring(below(3) ? below(5) : below(40), static_cast<wchar_t>(L'a' + below(26)));
    }

    void write(uint32_t row, uint32_t col, const std::wstring& text) {
        CGXStyle style = CGXStyle().SetValue(std::wstring_view(text));
        if (below(3) == 0) style.SetInterior(below(4));
        if (below(3) == 0) style.SetChoiceList(this->text());
        m_table.apply(CGXRange(row, col), style);
        if (m_table.has(row, col)) m_plain.at(row, col) = text;
    }

    void clear(const CGXRange& range) {
        m_table.clear(range, below(2));
        for (uint32_t row = range.top; row <= range.bottom; ++row)
            for (uint32_t col = range.left; col <= range.right; ++col) m_plain.at(row, col).clear();
    }

    void enter() {
        std::vector<GridTable::Entry> entries;
        for (uint32_t i = below(20); i > 0; --i)
            entries.push_back({{below(700), below(9)}, CellText(text())});
        std::vector<CellPlace> refused;
        for (const auto& at : m_table.enter(entries, refused))
            m_plain.at(at.row, at.col) = m_table.value(at.row, at.col);
        for (const auto& at : refused)
            ASSERT_TRUE(!m_table.has(at.row, at.col) || at.row == 0 || at.col == 0);
    }

    void resize() {
        m_table.setRowCount(below(800));
        m_table.setColCount(below(10));
        m_plain.cut(m_table.rowCount(), m_table.colCount());
    }

    std::mt19937 m_random;
    GridTable m_table;
    PlainTable m_plain;
};

TEST(RandomTableTest, AgreesWithAPlainArray) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        Session session(seed);
        for (int round = 0; round < 8; ++round) {
            for (int step = 0; step < 60; ++step) session.step();
            session.compare();
        }
    }
}

}  // namespace
