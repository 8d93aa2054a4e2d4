// Text pasted into a table: it always becomes rows of cells, and these come back as they are.
#include <cstdlib>
#include <string>

#include "src/platform/gridlib/CellsText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const CellRows rows = cellsFromTabs(std::wstring(data, data + size));
    if (cellsFromTabs(cellsAsTabs(rows)) != rows) std::abort();
    cellsAsHtml(rows);
    return 0;
}
