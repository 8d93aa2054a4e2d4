// Distances and angles as a person may type them: nothing crashes, and what is read is shown, read again and
// shown as the same.
#include <cmath>

#include "host/units/AngularUnits.h"
#include "host/units/LinearUnits.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    const int unit = data[0] % 7;
    const int precision = data[1] % 11 - 1;
    const std::wstring text(data + 2, data + size);
    if (const auto distance = units::distanceFromText(text, unit)) {
        require(std::isfinite(*distance));
        const auto shown = units::distanceText(*distance, unit, precision);
        require(shown.has_value() == (precision <= 8));
        // Larger ones have more digits than a double, and the largest round up to what no double holds.
        if (shown && std::fabs(*distance) < 1e15) {
            const auto again = units::distanceFromText(*shown, unit);
            require(again && units::distanceText(*again, unit, precision) == shown);
        }
    }
    if (const auto angle = units::angleFromText(text, unit)) {
        const auto shown = units::angleText(*angle, unit, precision);
        require(shown.has_value() == (precision <= 8));
        if (!shown) return 0;
        require(shown->find(L'-') == shown->npos);
        const auto again = units::angleFromText(*shown, unit);
        require(again && units::angleText(*again, unit, precision) == shown);
    }
    return 0;
}
