// Where a sheet of paper lies in a preview, and how far it can be scrolled. All in pixels. Portable.
#pragma once

#include "src/platform/base/PixelRect.h"

// How many pixels the sheet moves for a step of the scroll bar.
constexpr int PIXELS_PER_SCROLL_STEP = 10;

// The height of the page in a preview of that width: that of a sheet 7.5 by 11.
int reportPageHeight(int width);

// The scroll bar's largest position for a preview of that client area; negative where it has room for the
// sheet.
int reportScrollRange(const PixelRect& client);

// The parts of a preview, scrolled by that many pixels.
struct SheetLayout {
    SheetLayout(const PixelRect& client, int offset);

    PixelRect page;  // what the table is drawn on; not scrolled
    PixelRect ground;
    PixelRect paper, rightShadow, bottomShadow;
};
