#include "src/grid/RowCellWriter.h"

#include <algorithm>

CGXStyle rowCellStyle(uint32_t interior) {
    return CGXStyle().SetControl(CONTROL_STATIC).SetReadOnly(true).SetInterior(interior).SetWrapText(true);
}

size_t fieldsOf(std::wstring_view text) {
    const size_t last = text.find_last_not_of(L'\t');
    return 1 + std::count(text.begin(), text.begin() + static_cast<ptrdiff_t>(last + 1), L'\t');
}

std::wstring_view takeField(std::wstring_view& rest) {
    const size_t tab = rest.find(L'\t');
    const std::wstring_view field = rest.substr(0, tab);
    rest.remove_prefix(tab == rest.npos ? rest.size() : tab + 1);
    return field;
}

std::wstring_view trimmedField(std::wstring_view field) {
    if (field == L" ") return field;
    const size_t first = field.find_first_not_of(L' ');
    if (first == field.npos) return {};
    return field.substr(first, field.find_last_not_of(L' ') - first + 1);
}

void RowCellWriter::write(const CGXRange& cells, std::wstring_view text, uint8_t merge,
                          std::optional<uint8_t> alignment) {
    m_style.SetValue(text).SetMergeCell(merge);
    if (alignment) m_style.SetHorizontalAlignment(*alignment);
    m_grid.SetStyleRange(cells, m_style, 0, 0, 2);
}

void RowCellWriter::write(uint32_t column, std::wstring_view text, uint8_t merge,
                          std::optional<uint8_t> alignment) {
    write(CGXRange(m_row, column), text, merge, alignment);
}

void RowCellWriter::fill(std::wstring_view text, uint8_t merge, std::optional<uint8_t> alignment) {
    write(CGXRange(m_row, 0, m_row, m_grid.GetColCount()), text, merge, alignment);
}
