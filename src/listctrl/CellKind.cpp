#include "src/listctrl/CellKind.h"

namespace {

CellKind kindOfChar(wchar_t c) {
    if (c >= L'0' && c <= L'9') return CellKind::digits;
    switch (c) {
        case L'.':
        case L'-':
            return CellKind::digits;
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
    CellKind kind = CellKind::text;
    bool hasDigits = false;
    for (const wchar_t c : text) {
        kind = kindOfChar(c);
        if (kind == CellKind::text) return kind;
        hasDigits |= kind == CellKind::digits;
    }
    return hasDigits ? kind : CellKind::text;
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
