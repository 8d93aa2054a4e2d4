#include "host/units/LinearUnits.h"

#include <cmath>

#include "host/units/DecimalText.h"
#include "host/units/NumberScanner.h"

namespace units {

namespace {

enum Unit { SCIENTIFIC = 1, DECIMAL, ENGINEERING, ARCHITECTURAL, FRACTIONAL };

constexpr double INCHES_PER_FOOT = 12;

std::wstring whole(double value) { return decimalText(value, 0); }

// A value that rounds to nothing has no sign.
std::wstring withSign(double value, std::wstring magnitude) {
    const bool hasDigit = magnitude.find_first_of(L"123456789") != std::wstring::npos;
    return value < 0 && hasDigit ? L'-' + magnitude : magnitude;
}

std::wstring engineering(double magnitude, int precision) {
    const double rest = std::fmod(magnitude, INCHES_PER_FOOT);
    double feet = (magnitude - rest) / INCHES_PER_FOOT;
    std::wstring inches = decimalText(rest, precision);
    if (std::wcstod(inches.c_str(), nullptr) >= INCHES_PER_FOOT) {
        ++feet;
        inches = decimalText(0, precision);
    }
    return (feet > 0 ? whole(feet) + L"'-" : L"") + inches + L'"';
}

// The fraction of `parts` over 2 to `power`, reduced, behind a blank where something stands before it.
std::wstring fraction(double parts, int power, bool behindWhole) {
    auto numerator = static_cast<long>(parts);
    long denominator = 1L << power;
    if (numerator == 0) return {};
    for (; numerator % 2 == 0; numerator /= 2) denominator /= 2;
    return (behindWhole ? L" " : L"") + whole(numerator) + L'/' + whole(denominator);
}

// In parts of 1 over 2 to `power`.
std::wstring fractional(double parts, int power, bool alwaysWhole) {
    const double perWhole = std::ldexp(1, power);
    const double wholes = std::floor(parts / perWhole);
    const double rest = parts - wholes * perWhole;
    const bool showsWhole = alwaysWhole || wholes > 0 || rest == 0;
    return (showsWhole ? whole(wholes) : L"") + fraction(rest, power, showsWhole);
}

std::wstring architectural(double parts, int power) {
    const double perFoot = INCHES_PER_FOOT * std::ldexp(1, power);
    const double rest = std::fmod(parts, perFoot);
    const double feet = (parts - rest) / perFoot;
    const std::wstring inches = fractional(rest, power, feet > 0);
    return (feet > 0 ? whole(feet) + L"'-" : L"") + inches + L'"';
}

std::optional<double> inchesFrom(NumberScanner& scanner) {
    const auto inches = scanner.mixedNumber();
    scanner.takeMark(L'"');
    return inches;
}

std::optional<double> feetAndInches(NumberScanner& scanner) {
    const std::wstring_view start = scanner.rest();
    const auto feet = scanner.number(false);
    if (!feet || !scanner.takeMark(L'\'')) {
        scanner.back(start);
        return inchesFrom(scanner);
    }
    const double inFeet = *feet * INCHES_PER_FOOT;
    const bool inchesFollow = scanner.takeMark(L'-');
    scanner.skipBlanks();
    if (!inchesFollow && scanner.atEnd()) return inFeet;
    const auto inches = inchesFrom(scanner);
    return inches ? std::optional(inFeet + *inches) : std::nullopt;
}

std::optional<double> magnitudeFrom(NumberScanner& scanner, int unit) {
    switch (unit) {
        case SCIENTIFIC:
        case DECIMAL:
            return scanner.number(true);
        case ENGINEERING:
        case ARCHITECTURAL:
            return feetAndInches(scanner);
        case FRACTIONAL:
            return scanner.mixedNumber();
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<std::wstring> distanceText(double value, int unit, int precision) {
    if (precision == -1) precision = 4;
    if (precision < 0 || precision > 8 || !std::isfinite(value)) return std::nullopt;
    const double magnitude = std::fabs(value);
    // Beyond this a double has no fraction left to show.
    const int power = magnitude < 1e15 ? precision : 0;
    const auto parts = [&] { return std::round(std::ldexp(magnitude, power)); };
    switch (unit) {
        case SCIENTIFIC:
            return withSign(value, scientificText(magnitude, precision));
        case DECIMAL:
            return withSign(value, decimalText(magnitude, precision));
        case ENGINEERING:
            return withSign(value, engineering(magnitude, precision));
        case ARCHITECTURAL:
            return withSign(value, architectural(parts(), power));
        case FRACTIONAL:
            return withSign(value, fractional(parts(), power, false));
        default:
            return std::nullopt;
    }
}

std::optional<double> distanceFromText(std::wstring_view text, int unit) {
    NumberScanner scanner(text);
    scanner.skipBlanks();
    const double sign = scanner.sign();
    const auto magnitude = magnitudeFrom(scanner, unit);
    scanner.skipBlanks();
    if (!magnitude || !std::isfinite(*magnitude) || !scanner.atEnd()) return std::nullopt;
    return *magnitude == 0 ? 0 : sign * *magnitude;
}

}  // namespace units
