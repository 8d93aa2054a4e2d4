// The text of selected rows: reading it gives the rows again, and nothing else stands in it.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <vector>

#include "src/dialog/SelectionText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<int> rows(size / sizeof(int));
    if (!rows.empty()) std::memcpy(rows.data(), data, rows.size() * sizeof(int));
    const CString text = selectionText(rows);
    std::wistringstream in(text);
    size_t expectedLength = rows.empty() ? 0 : rows.size() - 1;
    for (const int row : rows) {
        std::wstring word;
        in >> word;
        if (word != std::to_wstring(row)) std::abort();
        expectedLength += word.size();
    }
    if (text.size() != expectedLength) std::abort();
    return 0;
}
