// Numbers as decimal digits, correctly rounded. Portable.
#pragma once

#include <string>

namespace units {

// With so many digits behind the point, 0 to 17; without one for 0.
std::wstring decimalText(double value, int digits);
// One digit before the point and at least two in the exponent: 1.7500E+01.
std::wstring scientificText(double value, int digits);

}  // namespace units
