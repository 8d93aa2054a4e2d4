// The columns of a list control as one text.
#include "src/listctrl/ColumnText.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::wstring text = textWithTabs(data, size);
    const auto widthOf = [](const CString& title) { return static_cast<int>(title.size()); };
    const auto columns = columnsFromText(text, widthOf);

    // Put together again, with the blanks that the widths tell of, the columns give the text behind its first
    // field.
    std::wstring joined;
    for (const ListColumn& column : columns) {
        const int ownWidth = static_cast<int>(widthOf(column.title) * 1.5 + 10);
        require(column.width >= ownWidth && (column.width - ownWidth) % 6 == 0);
        joined += L'\t' + column.title + std::wstring((column.width - ownWidth) / 6, L' ');
    }
    const size_t end = text == L"\t" ? 1 : text.find_last_not_of(L'\t') + 1;
    const std::wstring used = text.substr(0, end);
    const size_t tab = used.find(L'\t');
    require(joined == (tab == std::wstring::npos ? L"" : used.substr(tab)));
    return 0;
}
