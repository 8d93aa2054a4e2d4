// The letters of a font as outlines.
#pragma once

#include <vector>

namespace graphics {

struct GlyphPoint {
    float x, y;
};

struct Glyph {
    // Closed; x from the letter's begin, y from the baseline upward, in heights of a capital letter.
    std::vector<std::vector<GlyphPoint>> outlines;
    float advance = 0.0f;
};

class GlyphSource {
  public:
    virtual ~GlyphSource() = default;
    // Stays valid as long as the source.
    virtual const Glyph& glyph(char16_t letter) = 0;
};

}  // namespace graphics
