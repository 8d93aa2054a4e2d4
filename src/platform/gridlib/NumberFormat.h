// Numbers as cells hold and show them. A decimal point, no separators, whatever the machine's language.
// Portable.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The number format that shows the style's decimal places. A cell with any other shows its value as it is.
constexpr uint16_t FORMAT_PLACES = 3;

// The shortest text that reads as the same number.
std::wstring shortestText(double number);

// The number that a whole text is, blanks around it aside; nothing for any other text, and for no finite
// number.
std::optional<double> numberOf(std::wstring_view text);

constexpr int32_t MOST_PLACES = 15;

// `number` with that many decimal places, rounded; 15 at most. Below 0 places, and from 1e15 on, where places
// no longer tell anything, the shortest text.
std::wstring textWithPlaces(double number, int32_t places);
