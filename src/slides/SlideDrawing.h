// Draws the records of a slide. Throws std::bad_alloc where a pen, a brush or the corners of a fill can't be
// had; the surface has its own pen and brush again afterwards. Portable.
#pragma once

#include <cstdint>

#include "src/platform/base/PixelRect.h"
#include "src/slides/SlideRecordReader.h"
#include "src/slides/SlideSurface.h"

// The slide's own coordinates go to the surface as they are.
void drawSlide(SlideRecordReader records, SlideSurface& surface, bool monochrome);

// Every y is subtracted from `height`.
void drawSlideFlipped(SlideRecordReader records, SlideSurface& surface, int32_t height, bool monochrome);

// Scaled into `rect`, with the same scale in both directions and in the middle where `keepAspect` is set.
// Both extents are above 0.
void drawSlideInRect(SlideRecordReader records, SlideSurface& surface, SlideSize extents,
                     const PixelRect& rect, bool monochrome, bool keepAspect);
