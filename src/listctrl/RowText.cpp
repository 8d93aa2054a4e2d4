#include "src/listctrl/RowText.h"

CStringArray splitAtTabs(std::wstring_view text) {
    CStringArray parts;
    for (size_t start = 0; start <= text.size();) {
        const size_t end = std::min(text.find(L'\t', start), text.size());
        parts.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

CStringArray waitingRowCells(std::wstring_view text) {
    CStringArray cells = splitAtTabs(text);
    if (cells.size() > 1)
        for (CString& cell : cells) cell = trimBlanksRight(cell);
    return cells;
}
