#include "src/grid/LineFolding.h"

#include <algorithm>

#include "src/grid/RowCellWriter.h"

std::wstring_view keyField(std::wstring_view line, int keyColumn) {
    if (keyColumn == NO_KEY_COLUMN || line.empty()) return line;
    // The first field of a line that begins with a tab is empty, short count or not.
    if (keyColumn == 0 && line.starts_with(L'\t')) return {};
    size_t begin = 0;
    for (int field = 0; begin < line.size(); ++field) {
        const size_t end = std::min(line.find(L'\t', begin + 1), line.size());
        if (field == keyColumn) {
            std::wstring_view text = line.substr(begin, end - begin - 1);
            if (text == L" ") return text;
            text = trimmedField(text);
            text.remove_prefix(std::min(text.find_first_not_of(L'\t'), text.size()));
            return text;
        }
        begin = end;
    }
    return line;
}

FoldedLine::FoldedLine(std::wstring_view line) : m_endsWithTab(line.ends_with(L'\t')) {
    while (!line.empty()) m_fields.emplace_back(takeField(line));
}

void FoldedLine::fold(std::wstring_view next) {
    if (next.empty()) return;
    const auto leadingBlanks = [](std::wstring_view field) {
        return std::min(field.find_first_not_of(L' '), field.size());
    };
    size_t kept = 0;
    for (CString& above : m_fields) {
        std::wstring_view below = takeField(next);
        if (below.empty()) continue;
        below.remove_prefix(leadingBlanks(below));
        above.erase(0, leadingBlanks(above));
        if (below.size() < 2)
            above += L" \n";
        else
            above.append(L"\n").append(below);
        if (&m_fields[kept] != &above) m_fields[kept] = std::move(above);
        ++kept;
    }
    m_fields.resize(kept);
    m_endsWithTab = true;
}

CString FoldedLine::text() const {
    CString text;
    for (const CString& field : m_fields) text.append(field).append(L"\t");
    if (!m_endsWithTab && !text.empty()) text.pop_back();
    return text;
}

bool takesContinuations(std::wstring_view line, int keyColumn) {
    return hasTab(line) && !keyField(line, keyColumn).empty();
}

bool isContinuation(std::wstring_view line, int keyColumn) {
    return !line.empty() && keyField(line, keyColumn).empty();
}
