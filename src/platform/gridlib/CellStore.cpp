#include "src/platform/gridlib/CellStore.h"

namespace {

// Grows in steps of doubled size, so that filling row by row copies little.
template <class Value>
Value& reach(std::vector<Value>& values, size_t at) {
    if (at >= values.size()) values.resize(at + 1);
    return values[at];
}

}  // namespace

const CellStore::Column* CellStore::find(uint32_t row, uint32_t col) const {
    const uint32_t index = row / BAND;
    if (!m_lastBand || index != m_lastIndex) {
        const auto at = m_bands.find(index);
        if (at == m_bands.end()) return nullptr;
        m_lastIndex = index;
        m_lastBand = &at->second;
    }
    const auto at = m_lastBand->find(col);
    return at == m_lastBand->end() ? nullptr : &at->second;
}

CellStore::Band& CellStore::band(uint32_t row) {
    if (!m_lastBand || row / BAND != m_lastIndex) {
        m_lastIndex = row / BAND;
        m_lastBand = &m_bands[m_lastIndex];
    }
    return const_cast<Band&>(*m_lastBand);
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
    if (style.isEmpty()) return;
    Column& column = band(row)[col];
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
        for (auto& [col, column] : band->second) forget(column, from % BAND);
        ++band;
    }
    for (auto at = band; at != m_bands.end(); ++at)
        for (auto& [col, column] : at->second) forget(column, 0);
    m_bands.erase(band, m_bands.end());
}

void CellStore::dropColumns(uint32_t from) {
    for (auto& [index, band] : m_bands) {
        const auto first = band.lower_bound(from);
        for (auto at = first; at != band.end(); ++at) forget(at->second, 0);
        band.erase(first, band.end());
    }
}
