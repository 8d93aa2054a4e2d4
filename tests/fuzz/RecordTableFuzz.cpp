// Any calls on a record table do what they do on the plain one. The first two bytes are the store's count and
// its rows, the others four for each call: what, which record (two), and the text that is written.
#include <cstdint>
#include <cstdlib>

#include "tests/unit/records/TableTwins.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2 || size > 1200) return 0;
    TableTwins twins(data[1], data[0] - 2);
    for (size_t at = 2; at + 4 <= size; at += 4) {
        const int n = static_cast<int16_t>(data[at + 1] | data[at + 2] << 8);
        if (!twins.call(data[at] % 6, n, std::to_wstring(data[at + 3] % 8)).empty()) std::abort();
    }
    return 0;
}
