// The colours of drawings: 1 to 255 are entries of a fixed palette, 256 is the colour of the layer.
#pragma once

#include <cstdint>

namespace cad {

using ColorIndex = uint16_t;
constexpr ColorIndex BY_LAYER = 256;
constexpr ColorIndex WHITE = 7;

// 0x00RRGGBB. 1 to 6 are the pure hues from red by yellow, green, cyan and blue to magenta, 7 is white, 8 and
// 9 are greys, 10 to 249 are 24 hues of 15 degrees in five brightnesses, each full and half saturated, and
// 250 to 255 greys. What lies outside counts as white.
uint32_t rgbOf(ColorIndex color);

}  // namespace cad
