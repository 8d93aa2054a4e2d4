// Where a cell is. Portable.
#pragma once

#include <cstdint>

struct CellPlace {
    uint32_t row = 0, col = 0;
    bool operator==(const CellPlace&) const = default;
};
