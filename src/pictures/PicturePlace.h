// Where a picture is drawn in its tile. Portable; all lengths in device pixels.
#pragma once

#include "src/platform/base/PixelRect.h"

struct PixelSize {
    int32_t width = 0, height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }
};

// The largest rectangle of the proportions of `target` in the middle of an area of that size. Neither is
// empty.
PixelRect fitRect(PixelSize target, PixelSize area);

// The rectangle that a picture of that natural size takes up; empty where the picture or the area is. With
// `fit` that is the whole area. Without, the picture keeps its proportions: a metafile is made as large as it
// fits, and a bitmap as large as it is, or smaller where it doesn't fit.
PixelRect placeOfPicture(PixelSize natural, PixelSize area, bool isMetafile, bool fit);
