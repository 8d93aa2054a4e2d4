#include "src/report/SheetLayout.h"

namespace {

constexpr int LEFT = 8, TOP = 4, FROM_RIGHT = 19;
constexpr int SHADOW = 10;
// How far the shadows stay behind the corners that they start from.
constexpr int SHADOW_START = 8;
// What can be seen below the sheet at the end of the scroll bar.
constexpr int BELOW = 46;
constexpr double STEPS_PER_PIXEL = 0.1;

}  // namespace

// In whole numbers, since 22/15 has no double.
int reportPageHeight(int width) { return width * 22 / 15 + TOP; }

int reportScrollRange(const PixelRect& client) {
    const int below = reportPageHeight(client.width()) - TOP - client.height() + BELOW;
    return static_cast<int>(below * STEPS_PER_PIXEL);
}

SheetLayout::SheetLayout(const PixelRect& client, int offset) {
    const int height = reportPageHeight(client.width());
    const int right = client.right - FROM_RIGHT;
    const int bottom = height - offset;
    page = {LEFT, TOP, right, height};
    // kept: a preview that is higher than its sheet is left black below it.
    ground = {client.left, client.top, client.right, height};
    paper = {LEFT, TOP - offset, right, bottom};
    rightShadow = {right, TOP + SHADOW_START - offset, right + SHADOW, bottom};
    bottomShadow = {LEFT + SHADOW_START, bottom, right + SHADOW, bottom + SHADOW};
}
