// The size and place of a dialog's window between runs, and the limits of its size. Portable.
#pragma once

#include <functional>

#include "src/platform/base/PixelRect.h"

// Device pixels to one pixel of 96 dots per inch.
struct DisplayScale {
    double x = 1;
    double y = 1;
};

// As the profile keeps it: the size in pixels of 96 dots per inch, and the position values.
struct StoredPlacement {
    int width = 0, height = 0;
    int x = 0, y = 0;
};

// The window's rectangle at the start. `current` is the template's, `screenWidth` and `screenHeight` are
// those of the primary screen; `workArea` is asked only for a window that would be off it.
PixelRect restorePlacement(const StoredPlacement& stored, const PixelRect& current, int screenWidth,
                           int screenHeight, const DisplayScale& scale,
                           const std::function<PixelRect()>& workArea);

// What is stored of a window when it goes. kept: a position value of 0 stays 0, as nothing else writes it.
StoredPlacement placementToStore(const PixelRect& window, const StoredPlacement& stored,
                                 const DisplayScale& scale);

struct SizeLimits {
    int minWidth = 50, minHeight = 50;  // pixels at 96 dots per inch
    int maxWidth = 0, maxHeight = 0;    // device pixels
};

// The rectangle that a person drags a window to, within the limits. Only right and bottom give way, whichever
// edge is dragged.
PixelRect limitSizing(const PixelRect& proposed, const SizeLimits& limits, const DisplayScale& scale);

struct StartPlacement {
    PixelRect rect;
    int movedHeight = 0;  // the height that the window gets
};

// A window at its start is at least as wide as its limit. kept: the lower limit of the height counts only in
// a window that is narrower than it, and then together with its top.
StartPlacement startPlacement(PixelRect restored, const SizeLimits& limits);
