// What is wrong with where an opened dialog has its controls. Portable.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "src/platform/base/PixelRect.h"

// A visible control of an opened dialog, in client pixels.
struct PlacedControl {
    int id = 0;
    std::wstring className;
    uint32_t style = 0;
    PixelRect rect;
};

// Whether the two overlap and neither surrounds the other, so that one hides the other.
bool mayHide(const PlacedControl& a, const PlacedControl& b);

// The text of each finding: controls that overlap each other, and those that lie outside of the client area.
// Group boxes, frames and tab controls may surround others; controls on one tab control may stand on pages of
// their own.
std::vector<std::wstring> findMisplaced(const std::vector<PlacedControl>& controls, int width, int height);
