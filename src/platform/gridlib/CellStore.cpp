#include "src/platform/gridlib/CellStore.h"

#include <algorithm>

namespace {

// A column of a band begins with room for so many cells.
constexpr size_t FEW = 16;

// In few steps, so that filling row by row copies little, and a table of few rows takes little.
template <class Value>
Value& reach(std::vector<Value>& values, size_t at) {
    if (at >= values.size()) {
        if (at >= values.capacity()) values.reserve(at < FEW ? FEW : CellStore::BAND);
        values.resize(at + 1);
    }
    return values[at];
}

}  // namespace

// Of the column with that number, or of the first one behind it. A table that is filled has all of its
// columns, or all but the first: they are looked for there before they are searched.
size_t CellStore::position(const Band& band, uint32_t col) {
    for (const size_t guess : {size_t{col}, size_t{col} - 1})
        if (guess < band.size() && band[guess].col == col) return guess;
    const auto at =
        std::lower_bound(band.begin(), band.end(), col,
                         [](const Column& column, uint32_t number) { return column.col < number; });
    return static_cast<size_t>(at - band.begin());
}

const CellStore::Column* CellStore::find(uint32_t row, uint32_t col) const {
    const uint32_t index = row / BAND;
    if (!m_lastBand || index != m_lastIndex) {
        const auto at = m_bands.find(index);
        if (at == m_bands.end()) return nullptr;
        m_lastIndex = index;
        m_lastBand = &at->second;
    }
    const size_t at = position(*m_lastBand, col);
    return at < m_lastBand->size() && (*m_lastBand)[at].col == col ? &(*m_lastBand)[at] : nullptr;
}

CellStore::Column& CellStore::make(uint32_t row, uint32_t col) {
    if (!m_lastBand || row / BAND != m_lastIndex) {
        m_lastIndex = row / BAND;
        m_lastBand = &m_bands[m_lastIndex];
    }
    auto& band = const_cast<Band&>(*m_lastBand);
    const size_t at = position(band, col);
    if (at == band.size() || band[at].col != col)
        band.insert(band.begin() + static_cast<std::ptrdiff_t>(at), Column{col, {}, {}});
    return band[at];
}

const CellText& CellStore::text(uint32_t row, uint32_t col) const {
    static const CellText none;
    const Column* column = find(row, col);
    return column && row % BAND < column->texts.size() ? column->texts[row % BAND] : none;
}

LookPool::Id CellStore::lookId(uint32_t row, uint32_t col) const {
    const Column* column = find(row, col);
    return column && row % BAND < column->looks.size() ? column->looks[row % BAND] : LookPool::NONE;
}

void CellStore::setLook(Column& column, size_t at, LookPool::Id id) {
    LookPool::Id& place = reach(column.looks, at);
    m_looks.release(std::exchange(place, id));
}

void CellStore::apply(uint32_t row, uint32_t col, const CGXStyle& style) {
    Column& column = make(row, col);
    const size_t at = row % BAND;
    const LookPool::Id former = at < column.looks.size() ? column.looks[at] : LookPool::NONE;
    setLook(column, at, m_looks.holdApplied(former, style.look()));
    if (!style.hasValue()) return;
    if (!style.value().empty() || at < column.texts.size()) reach(column.texts, at) = style.value();
}

// Forgets a column's cells from that place in the band on.
void CellStore::forget(Column& column, size_t from) {
    for (size_t i = from; i < column.looks.size(); ++i) m_looks.release(column.looks[i]);
    if (from < column.looks.size()) column.looks.resize(from);
    if (from < column.texts.size()) column.texts.resize(from);
}

void CellStore::dropRows(uint32_t from) {
    m_lastBand = nullptr;
    auto band = m_bands.lower_bound(from / BAND);
    if (band != m_bands.end() && band->first == from / BAND && from % BAND) {
        for (Column& column : band->second) forget(column, from % BAND);
        ++band;
    }
    for (auto at = band; at != m_bands.end(); ++at)
        for (Column& column : at->second) forget(column, 0);
    m_bands.erase(band, m_bands.end());
}

void CellStore::dropColumns(uint32_t from) {
    for (auto& [index, band] : m_bands) {
        const auto first = band.begin() + static_cast<std::ptrdiff_t>(position(band, from));
        for (auto at = first; at != band.end(); ++at) forget(*at, 0);
        band.erase(first, band.end());
    }
}
