#include "store/ValueText.h"

#include <charconv>

namespace {

template <class Number>
void appendNumber(std::wstring& text, Number number) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    text.append(digits, end);
}

}  // namespace

void appendText(std::wstring& text, const DataValue& value) {
    switch (value.kind) {
        case DataKind::null:
            break;
        case DataKind::integer:
            appendNumber(text, value.integer);
            break;
        case DataKind::real:
            appendNumber(text, value.real);
            break;
        case DataKind::decimal:
        case DataKind::text:
            text.append(value.text.text, value.text.length);
            break;
    }
}

void appendHex(std::wstring& text, std::span<const unsigned char> bytes) {
    constexpr wchar_t DIGITS[] = L"0123456789ABCDEF";
    for (const unsigned char byte : bytes) {
        text += DIGITS[byte >> 4];
        text += DIGITS[byte & 15];
    }
}

double realOfSingle(float single) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, single).ptr;
    double real = single;
    std::from_chars(digits, end, real);
    return real;
}
