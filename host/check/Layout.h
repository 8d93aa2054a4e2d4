// What the lines' indentation tells of where lists were meant to end.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace check {

// Is told of a text from left to right. A list whose next line begins no further right than its own
// parenthesis was meant to be closed before that line; a line that begins further right than its neighbour
// before was meant to stand within that one.
class Layout {
  public:
    explicit Layout(size_t begin) : m_lineStart(begin) { m_open.push_back({}); }

    void newLine(size_t start) {
        m_lineStart = start;
        ++m_line;
        m_isLineBegun = false;
    }

    // A form or the opening of one; not the end of a list.
    void token(size_t at) {
        const bool isFirst = !m_isLineBegun;
        m_isLineBegun = true;
        m_tokenIsFirst = isFirst;
        if (!isFirst) return;
        const size_t column = at - m_lineStart;
        noteUnclosed(column);
        noteClosedEarly(column);
        m_open.back().lastChildColumn = column;
        m_open.back().lastChildClosed.reset();
    }

    void open(size_t at) {
        List list;
        list.at = at;
        list.line = m_line;
        list.column = at - m_lineStart;
        list.isFirst = m_tokenIsFirst;
        m_tokenIsFirst = false;
        m_open.push_back(list);
    }

    void close(size_t at) {
        m_isLineBegun = true;
        if (m_open.size() > 1) m_open.pop_back();
        m_open.back().lastChildClosed = at;
    }

    void stray() { m_isLineBegun = true; }

    // The list that should have been closed; the outermost such of the first line that shows one.
    std::optional<size_t> unclosed() const { return m_unclosed ? m_unclosed : m_unclosedInLine; }
    // The parenthesis that closed a list too early.
    std::optional<size_t> closedEarly() const { return m_closedEarly; }

  private:
    struct List {
        size_t at = 0;
        size_t line = 0;
        size_t column = 0;
        bool isFirst = false;  // of its line
        std::optional<size_t> lastChildColumn;
        std::optional<size_t> lastChildClosed;
    };

    // A list that begins its line is the better witness.
    void noteUnclosed(size_t column) {
        for (size_t i = 1; i < m_open.size(); ++i) {
            const List& list = m_open[i];
            if (list.line >= m_line || list.column < column) continue;
            if (list.isFirst && !m_unclosed) m_unclosed = list.at;
            if (!list.isFirst && !m_unclosedInLine) m_unclosedInLine = list.at;
        }
    }

    void noteClosedEarly(size_t column) {
        const List& around = m_open.back();
        if (!m_closedEarly && around.lastChildColumn && around.lastChildClosed &&
            column > *around.lastChildColumn)
            m_closedEarly = around.lastChildClosed;
    }

    size_t m_lineStart;
    size_t m_line = 0;
    bool m_isLineBegun = false;
    bool m_tokenIsFirst = false;
    // Below the lists that are open, one that stands for the text.
    std::vector<List> m_open;
    std::optional<size_t> m_unclosed, m_unclosedInLine, m_closedEarly;
};

}  // namespace check
