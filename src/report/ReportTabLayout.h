// Where the parts of the report's tab control lie, and the row of buttons below it. All in pixels. Portable.
#pragma once

#include <array>

#include "src/platform/base/PixelRect.h"

// In the tab control's client area.
struct ReportTabLayout {
    // `captions` is the lower edge of the tabs' captions.
    ReportTabLayout(int width, int height, int captions);

    PixelRect preview, drawing, scrollBar;
};

// The dialog's buttons in the order in which they stand.
inline constexpr std::array REPORT_BUTTONS = {3, 4, 5, 6, 1, 7};

// The place of the button that has so many before it, in the dialog's client area. The tab control has its
// left edge there, and a client area of that size.
PixelRect reportButton(int place, int tabLeft, int width, int height);

// The platform's numbers of scroll requests.
enum ScrollRequest : unsigned {
    SCROLL_LINE_UP,
    SCROLL_LINE_DOWN,
    SCROLL_PAGE_UP,
    SCROLL_PAGE_DOWN,
    SCROLL_THUMB_POSITION,
    SCROLL_THUMB_TRACK,
    SCROLL_TOP,
    SCROLL_BOTTOM,
};

// The position that a request asks of the report's scroll bar, whose largest one is `limit`; it may lie
// beyond the ends. `thumb` is where the person has pulled the thumb.
int scrolledTo(unsigned request, int position, int limit, int thumb);
