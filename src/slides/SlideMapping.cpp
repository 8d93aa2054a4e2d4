#include "src/slides/SlideMapping.h"

#include <cstdlib>

namespace {

bool differByMoreThanOne(int64_t difference) { return std::abs(int64_t{wrapped(difference)}) > 1; }

// -(width * height / divisor)
int32_t otherSide(int32_t width, int32_t height, int32_t divisor) {
    return wrapped(-(int64_t{wrapped(int64_t{height} * width)} / divisor));
}

}  // namespace

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
