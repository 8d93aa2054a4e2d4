#include "src/platform/gridlib/PastedCells.h"

namespace {

uint64_t cellsIn(const CellRows& rows) {
    uint64_t count = 0;
    for (const CStringArray& row : rows) count += row.size();
    return count;
}

}  // namespace

PastedCells pastedCells(const GridTable& table, const CGXRange& selected, const CellRows& rows,
                        uint64_t most) {
    PastedCells pasted;
    const auto cells = table.within(selected);
    if (!cells) return pasted;
    const bool fills = rows.size() == 1 && rows[0].size() == 1;
    pasted.tooMany = (fills ? cells->cellCount() : cellsIn(rows)) > most;
    if (pasted.tooMany) return pasted;
    if (fills) {
        const CellText text(rows[0][0]);
        for (uint32_t row = cells->top; row <= cells->bottom; ++row)
            for (uint32_t col = cells->left; col <= cells->right; ++col)
                pasted.entries.push_back({{row, col}, text});
        return pasted;
    }
    for (size_t row = 0; row < rows.size(); ++row)
        for (size_t col = 0; col < rows[row].size(); ++col) {
            const uint64_t toRow = cells->top + row, toCol = cells->left + col;
            if (toRow > table.rowCount() || toCol > table.colCount())
                ++pasted.outside;
            else
                pasted.entries.push_back(
                    {{static_cast<uint32_t>(toRow), static_cast<uint32_t>(toCol)}, CellText(rows[row][col])});
        }
    return pasted;
}
