#include "src/slides/SlideMapping.h"

#include <algorithm>
#include <cstdlib>

namespace {

bool differByMoreThanOne(int64_t difference) { return std::abs(int64_t{wrapped(difference)}) > 1; }

// -(width * height / divisor)
int32_t otherSide(int32_t width, int32_t height, int32_t divisor) {
    return wrapped(-(int64_t{wrapped(int64_t{height} * width)} / divisor));
}

// A device's coordinates have 27 bits: beyond that scale a point that is near may lie outside.
constexpr int64_t MOST_PIXELS_PER_UNIT = 64;

int32_t unitsOfTwoPixels(int32_t window, int32_t viewport) {
    const int64_t units = std::abs(int64_t{window}), pixels = std::abs(int64_t{viewport});
    if (units == 0 || pixels == 0 || pixels > MOST_PIXELS_PER_UNIT * units) return INT32_MAX;
    return static_cast<int32_t>(std::min<int64_t>((2 * units + pixels - 1) / pixels, INT32_MAX));
}

}  // namespace

PixelGrid::PixelGrid(SlideSize window, SlideSize viewport)
    : m_apart{unitsOfTwoPixels(window.cx, viewport.cx), unitsOfTwoPixels(window.cy, viewport.cy)} {}

SlidePoint centredOrigin(int32_t width, int32_t height, SlideSize set) {
    return {wrapped(int64_t{width} - set.cx) / 2,
            wrapped(height - int64_t{wrapped(int64_t{height} + set.cy) / 2})};
}

std::optional<SlideSize> fittedExtent(int32_t width, int32_t height, SlideSize set) {
    if (differByMoreThanOne(int64_t{set.cx} - width)) {
        if (set.cx == 0) return std::nullopt;
        return SlideSize{width, otherSide(width, height, set.cx)};
    }
    if (differByMoreThanOne(int64_t{height} + set.cy)) {
        if (set.cy == 0) return std::nullopt;
        return SlideSize{otherSide(width, height, set.cy), wrapped(-int64_t{height})};
    }
    return std::nullopt;
}
