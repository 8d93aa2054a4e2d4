// Where the lines of a text begin, and on which of them its author wants no findings.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace check {

class LineTable {
  public:
    explicit LineTable(std::u16string_view text);

    // All counted from 0.
    uint32_t line(uint32_t offset) const;
    uint32_t start(uint32_t line) const { return m_starts[line]; }
    uint32_t count() const { return static_cast<uint32_t>(m_starts.size()); }
    // The line ends with the comment "; check: off", or stands between such a line and "; check: on", each
    // alone in a line.
    bool isSilent(uint32_t line) const { return m_silent[line]; }

  private:
    std::vector<uint32_t> m_starts;
    std::vector<bool> m_silent;
};

}  // namespace check
