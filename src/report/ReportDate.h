// The date at a report's foot. Portable.
#pragma once

#include <ctime>
#include <string>

// The local date of that moment, as in "March 07, 2026", with English names. Raises CInvalidArgException for
// a moment that the calendar doesn't have.
std::wstring reportDate(std::time_t moment);
