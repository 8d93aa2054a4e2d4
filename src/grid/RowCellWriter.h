// Cells of a row as texts with tabs fill them. Portable.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "src/platform/gridlib/CGXGridCore.h"

// What every cell has that a text fills: to be read only, wrapped, on that color (0x00BBGGRR).
CGXStyle rowCellStyle(uint32_t interior);

// A text that begins so is a rule between rows: none of its cells merges.
inline bool isRule(std::wstring_view text) { return text.starts_with(L"---"); }

inline bool hasTab(std::wstring_view text) { return text.find(L'\t') != std::wstring_view::npos; }

// How many fields the text has up to the last that isn't empty, and at least one.
size_t fieldsOf(std::wstring_view text);

// The field at the start of `rest`, which loses it and the tab behind it.
std::wstring_view takeField(std::wstring_view& rest);

// What a field is cut to: the blanks at its ends go, unless it is exactly one blank.
std::wstring_view trimmedField(std::wstring_view field);

class RowCellWriter {
  public:
    RowCellWriter(CGXGridCore& grid, const CGXStyle& style, uint32_t row)
        : m_grid(grid), m_style(style), m_row(row) {}

    // One cell. Without an alignment it keeps its own.
    void write(uint32_t column, std::wstring_view text, uint8_t merge, std::optional<uint8_t> alignment = {});
    // All cells, the row's header too, with one text along which they merge.
    void fill(std::wstring_view text, uint8_t merge, std::optional<uint8_t> alignment = {});

  private:
    void write(const CGXRange& cells, std::wstring_view text, uint8_t merge,
               std::optional<uint8_t> alignment);

    CGXGridCore& m_grid;
    CGXStyle m_style;
    uint32_t m_row;
};
