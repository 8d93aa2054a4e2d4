// A slide of 100 x 50 whose lower left quarter is red, with a green line above it and, near the upper right
// corner, a dot in the foreground's colour.
#pragma once

#include <windows.h>

#include "tests/support/slides/MadeSlide.h"

constexpr COLORREF BLACK = 0, WHITE = 0xFFFFFF, RED = 0x0000FF, GREEN = 0x00FF00;

inline OpenSlide quarter() {
    return OpenSlide(MadeSlide({2, true}, 100, 50)
                         .color(1)
                         .fill({{0, 0}, {49, 0}, {49, 24}, {0, 24}})
                         .color(3)
                         .vector(0, 30, 99, 30)
                         .color(7)
                         .vector(90, 45, 90, 45)
                         .end());
}
