#include "src/listctrl/TableText.h"

#include <algorithm>

namespace {

bool dividesCells(wchar_t c) { return c == L'\t' || c == L'\r' || c == L'\n'; }

}  // namespace

CString tableText(const std::vector<CStringArray>& rows) {
    CString text;
    for (const CStringArray& row : rows) {
        for (size_t column = 0; column < row.size(); ++column) {
            if (column > 0) text += L'\t';
            std::replace_copy_if(row[column].begin(), row[column].end(), std::back_inserter(text),
                                 &dividesCells, L' ');
        }
        text += L"\r\n";
    }
    return text;
}
