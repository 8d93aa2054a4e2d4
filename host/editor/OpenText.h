// The text of a document as an editor changes it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/check/LineTable.h"

namespace editor {

// As the protocol counts: lines and UTF-16 units from 0. What lies beyond a line is its end, what lies beyond
// the text is its end.
struct Position {
    uint32_t line = 0;
    uint32_t character = 0;
};

class OpenText {
  public:
    OpenText() : OpenText("") {}
    // Line ends of all kinds become "\n".
    explicit OpenText(std::string_view utf8);

    void replace(Position begin, Position end, std::string_view utf8);

    const std::u16string& text() const { return m_text; }
    uint32_t offsetOf(Position position) const;
    Position positionOf(uint32_t offset) const;

  private:
    std::u16string m_text;
    check::LineTable m_lines;
};

}  // namespace editor
