#include "src/slides/ImageColor.h"

#include "src/platform/host/HostServices.h"
#include "src/platform/host/HostValue.h"
#include "src/slides/SlideColors.h"

namespace {

constexpr uint32_t BLACK = 0;

// kept: what this makes of -2, -16 and -18 has no color and is black, so that of the colors of the system
// only one is ever seen
int renumbered(int number) {
    switch (number) {
        case -2:
            return -22;
        case -15:
            return -16;
        case -16:
            return -9;
        case -18:
            return -17;
        default:
            return number;
    }
}

uint32_t drawingBackground() {
    uint32_t color = BLACK;
    return hostGetCurrentColors(&color, 1) == HOST_NORMAL ? color : BLACK;
}

uint32_t resolved(int number) {
    switch (number) {
        case -2:
            return drawingBackground();
        case -15:
            return GetSysColor(COLOR_BTNFACE);
        case -16:
        case -18:
            return GetSysColor(COLOR_BTNTEXT);
        default:
            break;
    }
    const bool isEntry = number >= 0 && static_cast<size_t>(number) < g_slideColors.size();
    return isEntry ? g_slideColors[static_cast<size_t>(number)] : BLACK;
}

}  // namespace

bool isImageColor(int number) {
    const bool isEntry = number >= 0 && static_cast<size_t>(number) < g_slideColors.size();
    return isEntry || number == -2 || number == -15 || number == -16 || number == -18;
}

uint32_t imageColor(int number) { return resolved(renumbered(number)); }
