// Where a slide comes to lie on a device. Arithmetic is that of 32-bit integers, divisions truncate.
// Portable.
#pragma once

#include <cstdint>
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
