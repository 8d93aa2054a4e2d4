#include "src/listctrl/RowText.h"

#include <algorithm>

void RowCells::read(std::wstring_view row) {
    m_row = row;
    m_at = 0;
    m_cutsBlanks = false;
}

void RowCells::readWaiting(std::wstring_view row) {
    read(row);
    m_cutsBlanks = row.find(L'\t') != row.npos;
}

wchar_t* RowCells::next() {
    if (m_at > m_row.size()) return nullptr;
    const size_t start = m_at;
    size_t end = std::min(m_row.find(L'\t', start), m_row.size());
    m_at = end + 1;
    if (m_cutsBlanks)
        while (end > start && m_row[end - 1] == L' ') --end;
    m_row[end] = L'\0';
    return &m_row[start];
}
