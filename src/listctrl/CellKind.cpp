#include "src/listctrl/CellKind.h"

namespace {

constexpr std::wstring_view DIGITS = L"0123456789.-";

CellKind kindOfChar(wchar_t c) {
    if (DIGITS.find(c) != std::wstring_view::npos) return CellKind::digits;
    switch (c) {
        case L'/':
            return CellKind::slash;
        case L'\'':
        case L'"':
        case L' ':
            return CellKind::feet;
        case L'E':
        case L'e':
        case L'+':
            return CellKind::exponent;
        default:
            return CellKind::text;
    }
}

}  // namespace

CellKind cellKindOf(std::wstring_view text) {
    if (text.find_first_of(DIGITS) == std::wstring_view::npos) return CellKind::text;
    for (const wchar_t c : text)
        if (kindOfChar(c) == CellKind::text) return CellKind::text;
    return kindOfChar(text.back());
}

int linearUnitOf(CellKind kind) {
    switch (kind) {
        case CellKind::digits:
            return 2;
        case CellKind::feet:
            return 3;
        case CellKind::slash:
            return 1;  // kept: a fraction is read in the scientific unit
        case CellKind::exponent:
            return 5;  // kept: an exponent is read in the fractional unit
        case CellKind::text:
            break;
    }
    return 0;
}
