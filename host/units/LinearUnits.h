// Distances as text, in the notations of drafting. Portable.
//
// Units: 1 scientific 1.7500E+01, 2 decimal 17.5000, 3 engineering 1'-5.5000", 4 architectural 1'-5 1/2",
// 5 fractional 17 1/2. In 3 and 4 the value is inches.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace units {

// The text of a value. `precision` is 0 to 8, and -1 means 4: decimals in units 1 to 3; in 4 and 5 the
// fraction's denominator is at most 2 to that power, reduced. Rounding carries: 11.99 is 1'-0". Nothing for
// another unit, another precision, or a value that isn't finite.
std::optional<std::wstring> distanceText(double value, int unit, int precision);

// The value that a person typed in that notation: 1'6, 1'-6", 1'6-1/2", 6 1/2, -.5, 1.5e3. Blanks may stand
// at the ends and around signs and marks: 1' - 6 - 1/2 ". A sign in front holds for the whole; a hyphen
// further on parts feet from inches and wholes from fractions. Nothing for an empty text, anything left over,
// a denominator of 0, and another unit.
std::optional<double> distanceFromText(std::wstring_view text, int unit);

}  // namespace units
