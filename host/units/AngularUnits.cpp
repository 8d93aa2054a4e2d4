#include "host/units/AngularUnits.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/units/DecimalText.h"
#include "host/units/NumberScanner.h"

namespace units {

namespace {

enum Unit { DEGREES = 1, SEXAGESIMAL, GRADS, RADIANS, SURVEYOR };

constexpr double DEGREES_PER_RADIAN = 180 / std::numbers::pi;
constexpr double GRADS_PER_RADIAN = 200 / std::numbers::pi;
constexpr double TURN = 2 * std::numbers::pi;

// A decimal number within one turn: what rounds up to a whole turn or beyond is 0.
std::wstring withinTurn(double value, double turn, int precision) {
    std::wstring text = decimalText(value, precision);
    return std::wcstod(text.c_str(), nullptr) >= turn ? decimalText(0, precision) : text;
}

// Degrees counted in the smallest part that a precision shows.
struct Sexagesimal {
    explicit Sexagesimal(int precision) {
        showsMinutes = precision >= 1;
        showsSeconds = precision >= 3;
        decimals = std::max(0, precision - 4);
        perSecond = static_cast<long long>(std::llround(std::pow(10, decimals)));
        perDegree = showsSeconds ? 3600 * perSecond : showsMinutes ? 60 : 1;
    }

    long long parts(double degrees) const { return std::llround(degrees * static_cast<double>(perDegree)); }

    std::wstring text(long long parts) const {
        std::wstring shown = std::to_wstring(parts / perDegree) + L'd';
        const long long rest = parts % perDegree;
        if (!showsMinutes) return shown;
        const long long perMinute = perDegree / 60;
        shown += std::to_wstring(rest / perMinute) + L'\'';
        if (!showsSeconds) return shown;
        const double seconds = static_cast<double>(rest % perMinute) / static_cast<double>(perSecond);
        return shown + decimalText(seconds, decimals) + L'"';
    }

    bool showsMinutes, showsSeconds;
    int decimals;
    long long perSecond, perDegree;
};

std::wstring bearing(double degrees, int precision) {
    const Sexagesimal scale(precision);
    const long long turn = scale.parts(360);
    const long long parts = scale.parts(degrees) % turn;
    const long long quarter = turn / 4;
    const bool north = parts <= 2 * quarter;
    // How far from the meridian, whichever way.
    const long long aside = std::abs(north ? quarter - parts : 3 * quarter - parts);
    const bool east = north ? parts < quarter : parts > 3 * quarter;
    if (aside == 0) return north ? L"N" : L"S";
    if (aside == quarter) return east ? L"E" : L"W";
    return (north ? L"N " : L"S ") + scale.text(aside) + (east ? L" E" : L" W");
}

// 45d30'15.5", 45d30'15, 45d30, 45d15", 45d, 45.5: the parts that stand, in degrees.
std::optional<double> sexagesimalFrom(NumberScanner& scanner) {
    const auto degrees = scanner.number(false);
    if (!degrees || !scanner.takeMark(L'd')) return degrees;
    scanner.skipBlanks();
    const auto part = scanner.number(false);
    if (!part) return degrees;
    if (scanner.takeMark(L'"')) return *degrees + *part / 3600;
    const double value = *degrees + *part / 60;
    if (!scanner.takeMark(L'\'')) return value;
    scanner.skipBlanks();
    const auto seconds = scanner.number(false);
    if (!seconds) return value;
    scanner.takeMark(L'"');
    return value + *seconds / 3600;
}

std::optional<double> bearingFrom(NumberScanner& scanner) {
    const bool north = scanner.take(L'N');
    if (!north && !scanner.take(L'S')) {
        if (scanner.take(L'E')) return 0;
        if (scanner.take(L'W')) return 180;
        const double sign = scanner.sign();
        const auto plain = sexagesimalFrom(scanner);
        return plain ? std::optional(sign * *plain) : std::nullopt;
    }
    const double meridian = north ? 90 : 270;
    scanner.skipBlanks();
    if (scanner.atEnd()) return meridian;
    const auto aside = sexagesimalFrom(scanner);
    scanner.skipBlanks();
    const bool east = scanner.take(L'E');
    if (!aside || *aside > 90 || (!east && !scanner.take(L'W'))) return std::nullopt;
    return meridian + (north == east ? -*aside : *aside);
}

std::optional<double> signedFrom(NumberScanner& scanner, int unit) {
    if (unit == SURVEYOR) {
        const auto degrees = bearingFrom(scanner);
        return degrees ? std::optional(*degrees / DEGREES_PER_RADIAN) : std::nullopt;
    }
    const double sign = scanner.sign();
    const auto value = unit == SEXAGESIMAL ? sexagesimalFrom(scanner) : scanner.number(true);
    if (!value) return std::nullopt;
    switch (unit) {
        case DEGREES:
        case SEXAGESIMAL:
            return sign * *value / DEGREES_PER_RADIAN;
        case GRADS:
            scanner.takeMark(L'g');
            return sign * *value / GRADS_PER_RADIAN;
        case RADIANS:
            scanner.takeMark(L'r');
            return sign * *value;
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<std::wstring> angleText(double radians, int unit, int precision) {
    if (precision == -1) precision = 4;
    if (precision < 0 || precision > 8 || !std::isfinite(radians)) return std::nullopt;
    double angle = std::fmod(radians, TURN);
    // At 0, too, which may be a negative one.
    if (std::signbit(angle)) angle += TURN;
    const double degrees = angle * DEGREES_PER_RADIAN;
    switch (unit) {
        case DEGREES:
            return withinTurn(degrees, 360, precision);
        case SEXAGESIMAL: {
            const Sexagesimal scale(precision);
            return scale.text(scale.parts(degrees) % scale.parts(360));
        }
        case GRADS:
            return withinTurn(angle * GRADS_PER_RADIAN, 400, precision) + L'g';
        case RADIANS:
            return withinTurn(angle, TURN, precision) + L'r';
        case SURVEYOR:
            return bearing(degrees, precision);
        default:
            return std::nullopt;
    }
}

std::optional<double> angleFromText(std::wstring_view text, int unit) {
    NumberScanner scanner(text);
    scanner.skipBlanks();
    const auto radians = signedFrom(scanner, unit);
    scanner.skipBlanks();
    if (!radians || !std::isfinite(*radians) || !scanner.atEnd()) return std::nullopt;
    return *radians == 0 ? 0 : *radians;
}

}  // namespace units
