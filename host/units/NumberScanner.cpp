#include "host/units/NumberScanner.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace units {

namespace {

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

wchar_t upper(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

// Of digits, a point and an exponent.
double valueOf(std::wstring_view text) {
    const std::string digits(text.begin(), text.end());
    double value = 0;
    // Out of range is too large or too small: only the slower function tells which.
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return read.ec == std::errc() ? value : std::strtod(digits.c_str(), nullptr);
}

}  // namespace

void NumberScanner::skipBlanks() {
    while (!m_rest.empty() && m_rest.front() == L' ') m_rest.remove_prefix(1);
}

bool NumberScanner::take(wchar_t letter) {
    if (m_rest.empty() || upper(m_rest.front()) != upper(letter)) return false;
    m_rest.remove_prefix(1);
    return true;
}

bool NumberScanner::takeMark(wchar_t letter) {
    skipBlanks();
    return take(letter);
}

double NumberScanner::sign() {
    const bool negative = take(L'-');
    if (!negative) take(L'+');
    skipBlanks();
    return negative ? -1 : 1;
}

size_t NumberScanner::digitsFrom(size_t at) const {
    while (at < m_rest.size() && isDigit(m_rest[at])) ++at;
    return at;
}

std::optional<double> NumberScanner::wholeNumber() {
    const size_t end = digitsFrom(0);
    if (end == 0) return std::nullopt;
    const double value = valueOf(m_rest.substr(0, end));
    m_rest.remove_prefix(end);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> NumberScanner::number(bool withExponent) {
    const size_t whole = digitsFrom(0);
    size_t end = whole;
    size_t digits = whole;
    if (end < m_rest.size() && m_rest[end] == L'.') {
        end = digitsFrom(whole + 1);
        digits += end - whole - 1;
    }
    if (digits == 0) return std::nullopt;
    if (withExponent && end < m_rest.size() && upper(m_rest[end]) == L'E') {
        size_t power = end + 1;
        if (power < m_rest.size() && (m_rest[power] == L'-' || m_rest[power] == L'+')) ++power;
        if (const size_t last = digitsFrom(power); last > power) end = last;
    }
    const double value = valueOf(m_rest.substr(0, end));
    m_rest.remove_prefix(end);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> NumberScanner::mixedNumber() {
    const std::wstring_view start = m_rest;
    const auto first = wholeNumber();
    if (first && take(L'/')) {
        const auto denominator = wholeNumber();
        return denominator && *denominator != 0 ? std::optional(*first / *denominator) : std::nullopt;
    }
    const std::wstring_view behindFirst = m_rest;
    skipBlanks();
    const bool behindBlank = m_rest.size() < behindFirst.size();
    if (first && (take(L'-') || behindBlank)) {
        skipBlanks();
        const auto numerator = wholeNumber();
        if (numerator && take(L'/')) {
            const auto denominator = wholeNumber();
            if (!denominator || *denominator == 0) return std::nullopt;
            return *first + *numerator / *denominator;
        }
    }
    m_rest = start;
    return number(false);
}

}  // namespace units
