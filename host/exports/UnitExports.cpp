// The host's notations of distances and angles, as plug-ins reach them.
#include <algorithm>

#include "host/units/AngularUnits.h"
#include "host/units/LinearUnits.h"
#include "src/platform/host/HostUnits.h"

namespace {

int give(const std::optional<double>& value, double* result) {
    if (!value) return HOST_ERROR;
    *result = *value;
    return HOST_NORMAL;
}

int give(const std::optional<std::wstring>& text, wchar_t* buffer, int length) {
    if (!text || static_cast<int>(text->size()) >= length) return HOST_ERROR;
    *std::copy(text->begin(), text->end(), buffer) = L'\0';
    return HOST_NORMAL;
}

}  // namespace

int hostDisToF(const wchar_t* text, int unit, double* result) {
    return give(units::distanceFromText(text, unit), result);
}

int hostAngToF(const wchar_t* text, int unit, double* result) {
    return give(units::angleFromText(text, unit), result);
}

int hostRToS(double value, int unit, int precision, wchar_t* buffer, int length) {
    return give(units::distanceText(value, unit, precision), buffer, length);
}

int hostAngToS(double value, int unit, int precision, wchar_t* buffer, int length) {
    return give(units::angleText(value, unit, precision), buffer, length);
}
