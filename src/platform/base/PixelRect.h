// A rectangle in pixels, as window-free code has it. Portable.
#pragma once

#include <cstdint>

struct PixelRect {
    int32_t left = 0, top = 0, right = 0, bottom = 0;

    int32_t width() const { return right - left; }
    int32_t height() const { return bottom - top; }
    bool operator==(const PixelRect&) const = default;
};
