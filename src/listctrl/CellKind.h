// How a cell of a list control is compared when the list is sorted. Portable.
#pragma once

#include <cstdint>
#include <string_view>

// In what notation a cell is read, by its last character.
enum class CellKind : int8_t {
    text = -1,
    digits = 1,    // a digit, "." or "-"
    feet = 2,      // "'", "\"" or a blank
    slash = 3,     // "/"
    exponent = 5,  // "E", "e" or "+"
};

// Text where no character is a digit, "." or "-", and where one belongs to no notation at all.
CellKind cellKindOf(std::wstring_view text);

// The host's linear unit (HostUnits.h) in which cells of that kind are read; 0 for text.
int linearUnitOf(CellKind kind);
