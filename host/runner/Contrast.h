// How well a text stands out, measured on what was drawn. Portable.
#pragma once

#include <cstdint>
#include <span>

// The least contrast at which a text of usual size can be read well.
constexpr double LEAST_CONTRAST = 4.5;

// The contrast of the strongest of the colors (0xRRGGBB; other bits don't count) to the most frequent one, as
// the accessibility guidelines for the web define it: 1 to 21. 1 for one color alone, and for none.
double contrastOf(std::span<const uint32_t> pixels);
