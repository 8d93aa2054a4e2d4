#include "src/dialog/Placement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int SMALLEST_WIDTH = 200, SMALLEST_HEIGHT = 100;
// How far a window may reach beyond the screen, and hide beyond a work area.
constexpr int OVERHANG = 8, HIDDEN_EDGE = 4;

int rounded(double number) { return static_cast<int>(std::lround(number)); }

int wholeScale(double scale) { return std::max(1, rounded(scale)); }

void centreBetween(int32_t& low, int32_t& high, int32_t from, int32_t to) {
    const int32_t size = high - low;
    low = from + (to - from - size) / 2;
    high = low + size;
}

// Brings a window that is off the screen back into a work area.
void bringInto(PixelRect& window, const PixelRect& area) {
    const int32_t width = window.width(), height = window.height();
    if (window.right <= area.left || window.left >= area.right)
        centreBetween(window.left, window.right, area.left, area.right);
    if (window.left < area.left - HIDDEN_EDGE) {
        window.left = area.left;
        window.right = area.left + width;
    }
    if (window.top >= area.bottom || window.bottom <= area.top)
        centreBetween(window.top, window.bottom, area.top, area.bottom);
    if (window.top < area.top - HIDDEN_EDGE) {
        window.top = area.top;
        window.bottom = height;  // kept: the height alone
    }
}

}  // namespace

PixelRect restorePlacement(const StoredPlacement& stored, const PixelRect& current, int screenWidth,
                           int screenHeight, const DisplayScale& scale,
                           const std::function<PixelRect()>& workArea) {
    int width = rounded(stored.width * scale.x);
    int height = rounded(stored.height * scale.y);
    if (width == 0 && height == 0) {
        width = current.width();
        height = current.height();
    }
    PixelRect window;
    const bool placed = stored.x != 0 || stored.y != 0;
    window.left = placed ? stored.x - width / wholeScale(scale.x) : current.left;
    window.top = placed ? stored.y - height / wholeScale(scale.y) : current.top;
    window.right = window.left + width;
    window.bottom = window.top + height;
    const bool onScreen =
        window.left < screenWidth && window.right > 0 && window.bottom < screenHeight && window.top > 0;
    if (!onScreen) bringInto(window, workArea());
    if (window.width() < SMALLEST_WIDTH) window.right = window.left + SMALLEST_WIDTH;
    if (window.width() > screenWidth + OVERHANG) window.right = window.left + screenWidth;
    if (window.height() < SMALLEST_HEIGHT) window.bottom = window.top + SMALLEST_HEIGHT;
    if (window.height() > screenHeight + OVERHANG) window.bottom = window.top + screenHeight;
    return window;
}

StoredPlacement placementToStore(const PixelRect& window, const StoredPlacement& stored,
                                 const DisplayScale& scale) {
    StoredPlacement store{rounded(window.width() / scale.x), rounded(window.height() / scale.y), stored.x,
                          stored.y};
    if (store.x == 0 || store.y == 0) return store;
    const int ix = wholeScale(scale.x), iy = wholeScale(scale.y);
    const int factor = ix > 1 && iy > 1 ? 2 : 1;
    store.x += (window.right - store.x) / ix * factor;
    store.y += (window.bottom - store.y) / iy * factor;
    return store;
}

PixelRect limitSizing(const PixelRect& proposed, const SizeLimits& limits, const DisplayScale& scale) {
    PixelRect sized = proposed;
    const int minWidth = rounded(limits.minWidth * scale.x), minHeight = rounded(limits.minHeight * scale.y);
    if (proposed.width() < minWidth) sized.right = proposed.left + minWidth;
    if (proposed.height() < minHeight) sized.bottom = proposed.top + minHeight;
    if (proposed.width() > limits.maxWidth) sized.right = proposed.left + limits.maxWidth;
    if (proposed.height() > limits.maxHeight) sized.bottom = proposed.top + limits.maxHeight;
    return sized;
}

StartPlacement startPlacement(PixelRect restored, const SizeLimits& limits) {
    if (restored.width() < limits.minWidth) restored.right = restored.left + limits.minWidth;
    if (restored.width() >= limits.minHeight) return {restored, restored.height()};
    restored.bottom = restored.top + limits.minHeight;
    return {restored, restored.bottom};
}
