#include "host/lisp/Tokens.h"

#include <cstdint>

#include "host/lisp/Text.h"

namespace lisp {

namespace {

// The character behind `\U`, where a plus sign and four hexadecimal digits follow.
char16_t takeUnicode(std::u16string_view text, size_t& at) {
    if (text.size() - at < 5 || text[at] != u'+') return u'U';
    uint32_t code = 0;
    for (size_t i = 1; i <= 4; ++i) {
        const int digit = digitValue(text[at + i]);
        if (digit >= 16) return u'U';
        code = code << 4 | static_cast<uint32_t>(digit);
    }
    at += 5;
    return static_cast<char16_t>(code);
}

}  // namespace

char16_t escaped(char16_t letter, std::u16string_view text, size_t& at) {
    switch (letter) {
        case u'n':
            return u'\n';
        case u'r':
            return u'\r';
        case u't':
            return u'\t';
        case u'e':
            return u'\x1B';
        case u'U':
            return takeUnicode(text, at);
        default:
            break;
    }
    if (digitValue(letter) >= 8) return letter;
    uint32_t code = static_cast<uint32_t>(digitValue(letter));
    for (int i = 0; i < 2 && at < text.size() && digitValue(text[at]) < 8; ++i)
        code = code << 3 | static_cast<uint32_t>(digitValue(text[at++]));
    return static_cast<char16_t>(code);
}

std::optional<Number> numberOf(std::u16string_view word) {
    const char16_t first = word[0];
    const bool mayBe = digitValue(first) < 10 || first == u'+' || first == u'-' || first == u'.';
    if (!mayBe || word.find_first_of(u"0123456789") == word.npos) return std::nullopt;
    const std::optional<double> number = parseReal(word);
    if (!number) return std::nullopt;
    const bool isWhole = word.find_first_of(u".eE") == word.npos;
    if (isWhole && *number >= INT32_MIN && *number <= INT32_MAX) return static_cast<int32_t>(*number);
    return *number;
}

}  // namespace lisp
