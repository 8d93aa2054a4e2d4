// Where a slide comes to lie on a device. Arithmetic is that of 32-bit integers, divisions truncate.
// Portable.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>

#include "src/slides/SlideSurface.h"

// A sum or product as 32-bit integers have it: what is beyond comes round.
constexpr int32_t wrapped(int64_t value) { return static_cast<int32_t>(static_cast<uint32_t>(value)); }

// Both for a rectangle of that width and height from the device's origin, and the viewport extent that the
// device made of (width, -height).

// The origin with which the picture stands in the middle.
SlidePoint centredOrigin(int32_t width, int32_t height, SlideSize set);
// The extent that fills the whole width, or the whole height. Nothing where the extent that was set does so
// already, up to a pixel, or is 0.
std::optional<SlideSize> fittedExtent(int32_t width, int32_t height, SlideSize set);

// Tells points apart that lie at least two pixels from each other, without their exact pixels.
class PixelGrid {
  public:
    // Knows nothing.
    PixelGrid() = default;
    // A device with these extents and no further transformation.
    PixelGrid(SlideSize window, SlideSize viewport);

    // Never true of two points in one pixel, nor of points so far out that the device may not tell them
    // apart.
    bool areApart(SlidePoint a, SlidePoint b) const {
        return isNear(a) && isNear(b) &&
               (std::abs(int64_t{a.x} - b.x) >= m_apart.cx || std::abs(int64_t{a.y} - b.y) >= m_apart.cy);
    }

  private:
    static constexpr int32_t FAR_OUT = 1 << 20;

    static bool isNear(SlidePoint point) {
        return point.x > -FAR_OUT && point.x < FAR_OUT && point.y > -FAR_OUT && point.y < FAR_OUT;
    }

    // So many units are two pixels.
    SlideSize m_apart{INT32_MAX, INT32_MAX};
};
