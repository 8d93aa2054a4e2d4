// Whether every text of a drawn table stays in its cell, as the lines around the cells show.
#pragma once

#include "tests/unit/report/Record.h"

inline bool isInCell(const Drawn& text, const PixelRect& cell) {
    if (text.rect.width() <= 0 || text.rect.height() <= 0) return true;  // nothing shows
    const int bottom = std::min(text.rect.bottom, text.rect.top + text.height);
    return text.rect.left >= cell.left && text.rect.right <= cell.right && text.rect.top >= cell.top &&
           bottom <= cell.bottom;
}

// A row is its texts, and then for each cell the corner that its right edge begins at, and the ends of its
// right and its bottom edge.
inline bool textsStayInCells(const std::vector<Drawn>& drawn, const ReportRows& rows) {
    size_t at = 1;
    int y = drawn.size() > 1 ? drawn[1].rect.top : 0;
    for (const auto& row : rows) {
        const size_t count = row->m_cells.size(), edges = at + count;
        for (size_t i = 0; i < count; ++i) {
            const Drawn *start = &drawn.at(edges + 3 * i), *right = start + 1, *bottom = start + 2;
            if (start->kind != Drawn::move || bottom->kind != Drawn::line) return false;
            const PixelRect cell{bottom->rect.left, start->rect.top, right->rect.left, right->rect.top};
            if (i == 0) y = cell.top;
            if (cell.top != y || cell.bottom < cell.top || cell.right < cell.left) return false;
            if (!isInCell(drawn.at(at + i), cell)) return false;
        }
        at = edges + 3 * count + 1;
    }
    return at + 4 == drawn.size();
}
