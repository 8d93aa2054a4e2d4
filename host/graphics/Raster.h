// Drawing by software into memory: lines, triangles and filled outlines, with a depth for each point.
// Coordinates are pixels, x to the right, y downward, the first pixel's middle at 0.5; z grows towards who
// looks. What lies outside is clipped; numbers that aren't finite draw nothing.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/database/Entity.h"

namespace graphics {

struct PixelPoint {
    float x, y, z;
};

class Raster {
  public:
    // Draws from now on into `pixels`, 0x00RRGGBB row by row from the top, which outlive that.
    void attach(uint32_t* pixels, int width, int height);
    int width() const { return m_width; }
    int height() const { return m_height; }

    void clear(uint32_t color);
    // From now on what lies behind something drawn before isn't seen; nothing lies there yet.
    void useDepth();
    void dropDepth() { m_depth.clear(); }

    // One pixel wide. `smooth` blends with what lies under; it ignores depth.
    void line(PixelPoint a, PixelPoint b, uint32_t color, bool smooth);
    void line(PixelPoint a, PixelPoint b, uint32_t color, bool smooth, float width, cad::LinePattern pattern);
    void triangle(PixelPoint a, PixelPoint b, PixelPoint c, uint32_t color);
    void point(PixelPoint at, uint32_t color);
    // The inside of closed outlines, by the non-zero rule, with smooth edges. All of it lies at depth `z`.
    void fill(std::span<const std::vector<PixelPoint>> outlines, float z, uint32_t color);

  private:
    bool clip(PixelPoint& a, PixelPoint& b) const;
    void solidLine(PixelPoint a, PixelPoint b, uint32_t color);
    void deepLine(PixelPoint a, PixelPoint b, uint32_t color);
    void smoothLine(PixelPoint a, PixelPoint b, uint32_t color);
    void blend(int x, int y, uint32_t color, uint32_t coverage);

    uint32_t* m_pixels = nullptr;
    int m_width = 0;
    int m_height = 0;
    // Empty where depth isn't used.
    std::vector<float> m_depth;
    std::vector<float> m_coverage;
};

}  // namespace graphics
