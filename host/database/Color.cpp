#include "host/database/Color.h"

#include <algorithm>
#include <cmath>

namespace cad {
namespace {

constexpr uint32_t FIRST[] = {0xFFFFFF, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                              0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
constexpr uint32_t LAST_GREYS[] = {0x333333, 0x505050, 0x696969, 0x828282, 0xBEBEBE, 0xFFFFFF};
constexpr double BRIGHTNESS[] = {1.0, 0.65, 0.5, 0.3, 0.15};
constexpr ColorIndex FIRST_HUE = 10;
constexpr ColorIndex FIRST_LAST_GREY = 250;

// A part of a colour of that hue in degrees: red with shift 0, green with 8, blue with 4.
uint32_t part(double hue, double saturation, double value, double shift) {
    const double k = std::fmod(shift / 2.0 + hue / 60.0 + 5.0, 6.0);
    const double level = value - value * saturation * std::clamp(std::min(k, 4.0 - k), 0.0, 1.0);
    return static_cast<uint32_t>(level * 255.0);
}

}  // namespace

uint32_t rgbOf(ColorIndex color) {
    if (color < FIRST_HUE) return FIRST[color];
    if (color > 255) return 0xFFFFFF;
    if (color >= FIRST_LAST_GREY) return LAST_GREYS[color - FIRST_LAST_GREY];
    const double hue = (color - FIRST_HUE) / 10 * 15.0;
    const double value = BRIGHTNESS[color % 10 / 2];
    const double saturation = color % 2 ? 0.5 : 1.0;
    return part(hue, saturation, value, 0.0) << 16 | part(hue, saturation, value, 8.0) << 8 |
           part(hue, saturation, value, 4.0);
}

}  // namespace cad
