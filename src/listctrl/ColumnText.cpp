#include "src/listctrl/ColumnText.h"

#include "src/listctrl/RowText.h"

namespace {

constexpr int PIXELS_FOR_A_BLANK = 6;

std::wstring_view withoutTabsAtEnd(std::wstring_view text) {
    return text == L"\t" ? text : text.substr(0, text.find_last_not_of(L'\t') + 1);
}

}  // namespace

std::vector<ListColumn> columnsFromText(std::wstring_view text,
                                        const std::function<int(const CString&)>& widthOf) {
    std::vector<ListColumn> columns;
    RowCells fields;
    fields.read(withoutTabsAtEnd(text));
    fields.next();
    while (const wchar_t* field = fields.next()) {
        const CString given = field;
        const CString title = trimBlanksRight(given);
        const auto blanks = static_cast<int>(given.size() - title.size());
        const int width = static_cast<int>(widthOf(title) * 1.5 + 10) + blanks * PIXELS_FOR_A_BLANK;
        columns.push_back({title, width});
    }
    return columns;
}
