#include "host/check/LineTable.h"

#include <algorithm>

#include "host/lisp/Text.h"

namespace check {

LineTable::LineTable(std::u16string_view text) {
    bool isOff = false;
    for (size_t begin = 0; begin <= text.size();) {
        const size_t end = std::min(text.find(u'\n', begin), text.size());
        const std::u16string_view line = lisp::trimmed(text.substr(begin, end - begin));
        if (line == u"; check: on") isOff = false;
        if (line == u"; check: off") isOff = true;
        m_starts.push_back(static_cast<uint32_t>(begin));
        m_silent.push_back(isOff || line.ends_with(u"; check: off"));
        begin = end + 1;
    }
}

uint32_t LineTable::line(uint32_t offset) const {
    const auto behind = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
    return static_cast<uint32_t>(behind - m_starts.begin()) - 1;
}

}  // namespace check
