// Reads a typed text from left to right. Portable.
#pragma once

#include <optional>
#include <string_view>

namespace units {

class NumberScanner {
  public:
    explicit NumberScanner(std::wstring_view text) : m_rest(text) {}

    bool atEnd() const { return m_rest.empty(); }
    void skipBlanks();
    // Takes that letter, in either case, or sign; false where something else stands.
    bool take(wchar_t letter);
    // The same behind blanks; where something else stands, the blanks alone are taken.
    bool takeMark(wchar_t letter);
    // -1 behind a minus sign, 1 behind a plus sign or none. Takes the blanks behind it, too.
    double sign();
    // Digits alone.
    std::optional<double> wholeNumber();
    // Digits with or without a decimal point, and with an exponent where that is allowed; no sign.
    std::optional<double> number(bool withExponent);
    // A decimal number, or a fraction such as 1/2, 6 1/2, 6-1/2 or 6 - 1/2. Nothing for a denominator of 0.
    std::optional<double> mixedNumber();

    // Where the scanner stands; `back` returns there.
    std::wstring_view rest() const { return m_rest; }
    void back(std::wstring_view rest) { m_rest = rest; }

  private:
    size_t digitsFrom(size_t at) const;

    std::wstring_view m_rest;
};

}  // namespace units
