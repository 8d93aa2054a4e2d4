#include "host/units/DecimalText.h"

#include <charconv>
#include <iterator>

namespace units {

namespace {

std::wstring text(double value, std::chars_format format, int digits) {
    char buffer[512];
    // Several times as fast as the printf family.
    char* const end = std::to_chars(buffer, std::end(buffer), value, format, digits).ptr;
    return std::wstring(buffer, end);
}

}  // namespace

std::wstring decimalText(double value, int digits) { return text(value, std::chars_format::fixed, digits); }

std::wstring scientificText(double value, int digits) {
    std::wstring shown = text(value, std::chars_format::scientific, digits);
    shown[shown.find(L'e')] = L'E';
    return shown;
}

}  // namespace units
