// Cells of any text, one in each line behind the byte that gives the direction, are sorted as the plain
// procedure sorts them.
#include <cstdint>
#include <cstdlib>

#include "src/listctrl/CellOrder.h"
#include "tests/unit/listctrl/MemoryRows.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1 || size > 500) return 0;
    std::vector<CString> cells(1);
    for (size_t at = 1; at < size; ++at) {
        if (data[at] == '\n')
            cells.emplace_back();
        else
            cells.back() += static_cast<wchar_t>(data[at]);
    }
    const bool ascending = data[0] & 1;
    if (sortedOrder(cells, ascending, parseDistance) != plainOrder(cells, ascending)) std::abort();
    return 0;
}
