// Where a cell is. Portable.
#pragma once

#include <compare>
#include <cstdint>

struct CellPlace {
    uint32_t row = 0, col = 0;
    // Row by row.
    auto operator<=>(const CellPlace&) const = default;
};
