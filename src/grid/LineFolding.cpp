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

CString foldContinuationLine(std::wstring_view line, std::wstring_view next) {
    const auto withoutLeadingBlanks = [](std::wstring_view field) {
        return field.substr(std::min(field.find_first_not_of(L' '), field.size()));
    };
    if (next.empty()) return CString(line);
    CString folded;
    while (!line.empty()) {
        std::wstring_view above = takeField(line), below = takeField(next);
        if (below.empty()) continue;
        above = withoutLeadingBlanks(above);
        below = withoutLeadingBlanks(below);
        folded.append(above);
        if (below.size() < 2)
            folded.append(L" \n\t");
        else
            folded.append(L"\n").append(below).append(L"\t");
    }
    return folded;
}

bool takesContinuations(std::wstring_view line, int keyColumn) {
    return hasTab(line) && !keyField(line, keyColumn).empty();
}

bool isContinuation(std::wstring_view line, int keyColumn) {
    return !line.empty() && keyField(line, keyColumn).empty();
}
