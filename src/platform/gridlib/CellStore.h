// The cells of a table that have something of their own. Portable.
//
// Rows stand in bands; a band keeps each column in which it has something as two arrays, one of texts and one
// of looks, as long as needed. So a full table costs 20 bytes a cell beside long texts, a column of equal
// header cells without text 4, and an empty table nothing, however many rows it has.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "src/platform/gridlib/CGXStyle.h"
#include "src/platform/gridlib/LookPool.h"

class CellStore {
  public:
    const CellText& text(uint32_t row, uint32_t col) const;
    // Valid until the next change.
    const CellLook& look(uint32_t row, uint32_t col) const { return m_looks[lookId(row, col)]; }
    // Equal looks have equal ids.
    LookPool::Id lookId(uint32_t row, uint32_t col) const;

    // Puts the style's attributes, of which it has any, over those of the cell.
    void apply(uint32_t row, uint32_t col, const CGXStyle& style);
    // Takes the value of each cell in the rectangle (corners included) that `may` allows, and with `looks`
    // the look too. Visits only cells that have something.
    template <class May>
    void clear(uint32_t top, uint32_t left, uint32_t bottom, uint32_t right, bool looks, May may);

    // Forgets all cells from that row or column on.
    void dropRows(uint32_t from);
    void dropColumns(uint32_t from);

    // How many rows a band has.
    static constexpr uint32_t BAND = 256;

  private:
    struct Column {
        uint32_t col;
        std::vector<CellText> texts;
        std::vector<LookPool::Id> looks;
    };
    using Band = std::vector<Column>;  // in the order of the columns

    static size_t position(const Band& band, uint32_t col);
    const Column* find(uint32_t row, uint32_t col) const;
    Column& make(uint32_t row, uint32_t col);
    void setLook(Column& column, size_t at, LookPool::Id id);
    void forget(Column& column, size_t from);

    LookPool m_looks;
    std::map<uint32_t, Band> m_bands;
    // The band that was asked for last: questions come row by row.
    mutable uint32_t m_lastIndex = 0;
    mutable const Band* m_lastBand = nullptr;
};

template <class May>
void CellStore::clear(uint32_t top, uint32_t left, uint32_t bottom, uint32_t right, bool looks, May may) {
    for (auto band = m_bands.lower_bound(top / BAND); band != m_bands.end() && band->first <= bottom / BAND;
         ++band) {
        auto& columns = band->second;
        for (size_t at = position(columns, left); at < columns.size() && columns[at].col <= right; ++at) {
            Column& column = columns[at];
            const size_t cells = std::max(column.texts.size(), column.looks.size());
            for (size_t i = 0; i < cells; ++i) {
                const uint32_t row = band->first * BAND + static_cast<uint32_t>(i);
                if (row < top || row > bottom || !may(row, column.col)) continue;
                if (i < column.texts.size()) column.texts[i] = CellText();
                if (i >= column.looks.size()) continue;
                CellLook rest = looks ? CellLook() : m_looks[column.looks[i]];
                rest.hasValue = false;
                setLook(column, i, m_looks.hold(rest));
            }
        }
    }
}
