#include "src/tiles/EditFilter.h"

#include <array>

namespace {

constexpr wchar_t BACKSPACE = 8;
constexpr wchar_t ESCAPE = 27;

// In the order of the unit codes.
constexpr std::array<std::wstring_view, 5> NUMERIC_CHARACTERS = {
    L"Ee+0123456789.-", L"0123456789.-", L"0123456789./' \"-", L"0123456789./' \"-", L"0123456789./-",
};
constexpr std::array<std::wstring_view, 5> ANGULAR_CHARACTERS = {
    L"0123456789.-",   L"Dd0123456789.'\"-",          L"Gg0123456789.-",
    L"Rr0123456789.-", L"DdNnSsEeWw 0123456789.'\"-",
};

}  // namespace

std::optional<std::wstring_view> validChars(EditMode mode, int unit) {
    if (unit < 1 || unit > 5 || mode == EditMode::plain) return std::nullopt;
    return (mode == EditMode::numeric ? NUMERIC_CHARACTERS : ANGULAR_CHARACTERS)[unit - 1];
}

TypedChar filterChar(wchar_t typed, std::wstring_view valid) {
    if (typed == BACKSPACE) return TypedChar::pass;
    if (typed == ESCAPE) return TypedChar::restore;
    if (valid.empty() || valid.find(typed) != std::wstring_view::npos) return TypedChar::pass;
    return TypedChar::refuse;
}
