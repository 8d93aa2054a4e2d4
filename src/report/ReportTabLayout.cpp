#include "src/report/ReportTabLayout.h"

#include <algorithm>

namespace {

constexpr int GAP = 4;
constexpr int BAR_WIDTH = 17;

// kept: the row counts as wide as six steps.
constexpr int ROW_WIDTH = 492;
constexpr int BUTTON_WIDTH = 75, BUTTON_HEIGHT = 23, BUTTON_STEP = 82;
constexpr int BUTTONS_BELOW = 18;

constexpr int LINE = 6, PAGE = 10;

PixelRect placed(int x, int y, int width, int height) { return {x, y, x + width, y + height}; }

}  // namespace

ReportTabLayout::ReportTabLayout(int width, int height, int captions) {
    const int top = captions + GAP;
    preview = placed(GAP, top, width - 31, height - top - 4);
    drawing = placed(GAP, top, width - 10, height - top - 6);
    scrollBar = placed(width - 26, top, BAR_WIDTH, height - 5 - top);
}

PixelRect reportButton(int place, int tabLeft, int width, int height) {
    return placed((width - ROW_WIDTH) / 2 + tabLeft + place * BUTTON_STEP, height + BUTTONS_BELOW,
                  BUTTON_WIDTH, BUTTON_HEIGHT);
}

// kept: a step down and the request for the end stop one before the limit, a page and the thumb don't.
int scrolledTo(unsigned request, int position, int limit, int thumb) {
    switch (request) {
        case SCROLL_LINE_UP:
            return std::max(position - LINE, 0);
        case SCROLL_LINE_DOWN:
            return std::min(position + LINE, limit - 1);
        case SCROLL_PAGE_UP:
            return position - PAGE;
        case SCROLL_PAGE_DOWN:
            return position + PAGE;
        case SCROLL_THUMB_POSITION:
        case SCROLL_THUMB_TRACK:
            return thumb;
        case SCROLL_TOP:
            return 0;
        case SCROLL_BOTTOM:
            return limit - 1;
        default:
            return position;
    }
}
