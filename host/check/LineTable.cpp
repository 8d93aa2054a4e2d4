#include "host/check/LineTable.h"

#include <algorithm>

namespace check {

namespace {

std::u16string_view trimmed(std::u16string_view text) {
    const size_t begin = std::min(text.find_first_not_of(u" \r\t"), text.size());
    const size_t end = text.find_last_not_of(u" \r\t");
    return end == text.npos ? std::u16string_view() : text.substr(begin, end + 1 - begin);
}

}  // namespace

LineTable::LineTable(std::u16string_view text) {
    bool isOff = false;
    for (size_t begin = 0; begin <= text.size();) {
        const size_t end = std::min(text.find(u'\n', begin), text.size());
        const std::u16string_view line = trimmed(text.substr(begin, end - begin));
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
