// Which edges of a control follow the dialog's right and bottom edges when the dialog grows. Portable.
#pragma once

#include "src/platform/base/PixelRect.h"

// Percents of the dialog's growth in height that a control's edges follow, where they follow at all: what
// lets lists that stand one above the other share it.
struct HeightShares {
    int top = 100, bottom = 100;
};

// Distances from a control's edges to those of the dialog, in client pixels.
struct AnchorOffsets {
    // An edge of this offset, or of a smaller one, doesn't follow.
    static constexpr int32_t UNANCHORED = -10000;

    int32_t left = UNANCHORED, top = UNANCHORED, right = UNANCHORED, bottom = UNANCHORED;
    int32_t horizontalCentre = UNANCHORED, verticalCentre = UNANCHORED;

    int32_t heightAtStart = 0;  // of the client area
    HeightShares shares;
};

// Whether the code is a sum of the weights that anchorOffsets knows, or -1 for no anchor.
bool isAnchorCode(int code);

// The offsets of an anchor code, a sum of weights that is read from the largest down, each at most once: 300
// vertical and 150 horizontal centre, 75 all edges, 38 bottom, 25 right, 10 left, 1 top. `width` and `height`
// are those of the client area at the start. kept: the vertical centre takes the whole height where the
// horizontal one takes half of the width.
AnchorOffsets anchorOffsets(int code, const PixelRect& control, int width, int height,
                            HeightShares shares = {});

// Where a control stands in a client area of that size.
PixelRect anchored(PixelRect control, const AnchorOffsets& offsets, int width, int height);
