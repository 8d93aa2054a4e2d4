#include "src/records/RecordRows.h"

#include <exception>

void RecordRows::reserve(size_t records) {
    try {
        m_rows.reserve(records);
    } catch (const std::exception&) {
        // More than can be had: a wrong hint. The rows come all the same.
    }
}

bool RecordRows::add(const HostText* fields, size_t count) {
    try {
        m_rows.emplace_back(count,
                            [=](size_t at) { return std::wstring_view(fields[at].text, fields[at].length); });
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
