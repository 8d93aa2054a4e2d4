// What Lisp text is made of, below lists: where a word ends, what an escape and a number mean.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>

namespace lisp {

constexpr bool isBlank(char16_t c) { return c <= u' ' || c == 0xA0 || c == 0xFEFF; }
constexpr bool endsWord(char16_t c) {
    return isBlank(c) || c == u'(' || c == u')' || c == u'"' || c == u';' || c == u'\'';
}

// To the base of 16; 99 for what is no digit.
constexpr int digitValue(char16_t c) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return 99;
}

// What a backslash and `letter` behind it stand for in a string. `at` is where the text goes on behind the
// letter, and moves behind the digits that belong to it.
char16_t escaped(char16_t letter, std::u16string_view text, size_t& at);

using Number = std::variant<int32_t, double>;
// The number that a word is; nothing for a name. The word isn't empty.
std::optional<Number> numberOf(std::u16string_view word);

}  // namespace lisp
