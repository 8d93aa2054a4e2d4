// Distances and angles as a person may type them: nothing crashes, and what is read can be shown.
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "host/units/AngularUnits.h"
#include "host/units/LinearUnits.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    const int unit = data[0] % 7;
    const int precision = data[1] % 11 - 1;
    const std::wstring text(data + 2, data + size);
    if (const auto distance = units::distanceFromText(text, unit)) {
        const bool shown = units::distanceText(*distance, unit, precision).has_value();
        if (shown != (precision <= 8 && std::isfinite(*distance))) std::abort();
    }
    if (const auto angle = units::angleFromText(text, unit)) units::angleText(*angle, unit, precision);
    return 0;
}
