// Angles as text, in the notations of drafting. Portable.
//
// Units: 1 decimal degrees 45.0000, 2 degrees, minutes and seconds 45d30'15.00", 3 grads 50.0000g, 4 radians
// 0.7854r, 5 surveyor's bearings N 45d0'0" E, measured from north or south; the four quarters are E, N, W and
// S. Values are radians, counter-clockwise from east.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace units {

// The text of an angle, within one turn. `precision` is 0 to 8, and -1 means 4: decimals in units 1, 3 and 4;
// in 2 and 5 0 shows degrees, 1 and 2 minutes, 3 and 4 seconds, and above that decimals of the second.
// Nothing for another unit, another precision, or a value that isn't finite.
std::optional<std::wstring> angleText(double radians, int unit, int precision);

// The angle that a person typed in that notation, letters in either case, with blanks at the ends and around
// signs and marks where the person likes. The mark of the unit may be left out, and so may that of the last
// part in units 2 and 5: 45, 45d30, 45d30'15. Only the whole has a sign. In unit 5 an angle without letters
// counts from east. Nothing for an empty
// text, anything left over, a bearing above 90 degrees, and another unit.
std::optional<double> angleFromText(std::wstring_view text, int unit);

}  // namespace units
