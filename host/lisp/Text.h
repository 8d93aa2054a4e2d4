// Lisp text (UTF-16) from and to bytes, letter case, numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lisp {

std::string toUtf8(std::u16string_view text);
// A byte that is no UTF-8 stands for the Latin-1 letter of that number.
std::u16string fromUtf8(std::string_view bytes);
// The content of a text file: UTF-8 with or without mark or UTF-16 with mark. Line ends become "\n".
std::u16string decodeFile(std::string_view bytes);

// Latin, Greek and Cyrillic letters; all else stays.
char16_t upperCase(char16_t letter);
char16_t lowerCase(char16_t letter);
std::u16string upperCase(std::u16string_view text);
std::u16string lowerCase(std::u16string_view text);

std::u16string decimal(int64_t number);
// The shortest text that reads back as the same real, always with a point or an exponent.
std::u16string decimal(double number);
// Without the blanks, tabs and line ends at its ends, a text of any kind of letters.
template <class Text, class Letter = typename Text::value_type>
std::basic_string_view<Letter> trimmed(const Text& text) {
    constexpr Letter BLANKS[] = {' ', '\t', '\r', '\n', 0};
    const std::basic_string_view<Letter> whole = text;
    const size_t first = whole.find_first_not_of(BLANKS);
    if (first == whole.npos) return {};
    return whole.substr(first, whole.find_last_not_of(BLANKS) - first + 1);
}
// The number that the whole text is, if it is one.
std::optional<double> parseReal(std::u16string_view text);

}  // namespace lisp
