#include "src/platform/gridlib/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

bool isBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n'; }

}  // namespace

std::wstring shortestText(double number) {
    char text[32];
    const auto end = std::to_chars(text, std::end(text), number).ptr;
    return std::wstring(text, end);
}

std::optional<double> numberOf(std::wstring_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    if (text.starts_with(L'+') && !text.starts_with(L"+-")) text.remove_prefix(1);
    std::string letters;
    for (const wchar_t c : text) {
        if (c > 0x7E) return std::nullopt;
        letters += static_cast<char>(c);
    }
    double number;
    const auto [end, error] = std::from_chars(letters.data(), letters.data() + letters.size(), number);
    if (error != std::errc() || end != letters.data() + letters.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::wstring textWithPlaces(double number, int32_t places) {
    if (places < 0 || !(std::abs(number) < 1e15)) return shortestText(number);
    char text[64];
    const auto end =
        std::to_chars(text, std::end(text), number, std::chars_format::fixed, std::min(places, MOST_PLACES))
            .ptr;
    const std::wstring shown(text, end);
    // No "-0.00": a number that shows as nothing has no sign.
    return shown.find_first_not_of(L"-0.") == shown.npos && shown[0] == L'-' ? shown.substr(1) : shown;
}
