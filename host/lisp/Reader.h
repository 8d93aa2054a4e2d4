// Reads forms from text.
#pragma once

#include <string>
#include <string_view>

#include "host/lisp/Value.h"

namespace lisp {

class Machine;

class Reader {
  public:
    // `file` numbers the source for the places of lists, 0 for none. With `line` all of `text` counts as
    // written in that one line. `text` must outlive the reader.
    Reader(Machine& machine, std::u16string_view text, uint32_t file, uint32_t line = 0);

    // Reads the next form; false at the end of the text. Throws a located Error.
    bool next(Value& form);

    // Whether no list, string or comment of `text` is still open. More closing than opening parentheses count
    // as complete: reading tells the error.
    static bool isComplete(std::u16string_view text);

  private:
    bool atEnd() const { return m_position >= m_text.size(); }
    char16_t peek() const { return m_text[m_position]; }
    char16_t take();
    void skipBlanks();
    Value form();
    Value list();
    Value string();
    Value atom();
    [[noreturn]] void fail(std::u16string message, uint32_t line) const;

    Machine& m_machine;
    std::u16string_view m_text;
    size_t m_position = 0;
    uint32_t m_line;
    uint32_t m_file;
    bool m_countsLines;
};

// Whether the reader takes the text as one word: the name of a symbol, or a number.
bool isWord(std::u16string_view text);

// How prin1 writes a string.
std::u16string readable(std::u16string_view text);

}  // namespace lisp
