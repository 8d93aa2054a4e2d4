#include "src/dialog/Placement.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int SMALLEST_WIDTH = 200, SMALLEST_HEIGHT = 100;
// How far a window may reach beyond the screen, and hide beyond a work area.
constexpr int OVERHANG = 8, HIDDEN_EDGE = 4;

// A profile may hold any number, and sums of them don't fit in 32 bits.
int64_t rounded(double number) { return std::llround(number); }

int64_t wholeScale(double scale) { return std::max<int64_t>(1, rounded(scale)); }

int32_t bounded(int64_t number) {
    return static_cast<int32_t>(std::clamp<int64_t>(number, std::numeric_limits<int32_t>::min(),
                                                    std::numeric_limits<int32_t>::max()));
}

// The extent of a window in one direction.
struct Span {
    int64_t low, high;

    int64_t size() const { return high - low; }
    bool meets(const Span& other) const { return low < other.high && high > other.low; }
    void centreIn(const Span& area) {
        const int64_t before = size();
        low = area.low + (area.size() - before) / 2;
        high = low + before;
    }
    void limit(int64_t smallest, int64_t screen) {
        if (size() < smallest) high = low + smallest;
        if (size() > screen + OVERHANG) high = low + screen;
    }
};

struct Frame {
    Span across, down;

    bool meets(const Frame& other) const { return across.meets(other.across) && down.meets(other.down); }
    PixelRect rect() const {
        return {bounded(across.low), bounded(down.low), bounded(across.high), bounded(down.high)};
    }
};

Frame frameOf(const PixelRect& rect) { return {{rect.left, rect.right}, {rect.top, rect.bottom}}; }

// Brings a window that is off the screen back into a work area.
void bringInto(Frame& window, const Frame& area) {
    Span &across = window.across, &down = window.down;
    const int64_t width = across.size(), height = down.size();
    if (across.high <= area.across.low || across.low >= area.across.high) across.centreIn(area.across);
    if (across.low < area.across.low - HIDDEN_EDGE) across = {area.across.low, area.across.low + width};
    if (down.low >= area.down.high || down.high <= area.down.low) down.centreIn(area.down);
    if (down.low < area.down.low - HIDDEN_EDGE) down = {area.down.low, height};  // kept: the height alone
}

}  // namespace

PixelRect restorePlacement(const StoredPlacement& stored, const PixelRect& current, int screenWidth,
                           int screenHeight, const DisplayScale& scale,
                           const std::function<PixelRect()>& workArea) {
    int64_t width = rounded(stored.width * scale.x);
    int64_t height = rounded(stored.height * scale.y);
    if (width == 0 && height == 0) {
        width = current.width();
        height = current.height();
    }
    const bool placed = stored.x != 0 || stored.y != 0;
    const int64_t left = placed ? stored.x - width / wholeScale(scale.x) : current.left;
    const int64_t top = placed ? stored.y - height / wholeScale(scale.y) : current.top;
    Frame window{{left, left + width}, {top, top + height}};
    const Frame screen{{0, screenWidth}, {0, screenHeight}};
    const bool onScreen = window.across.low < screenWidth && window.across.high > 0 &&
                          window.down.high < screenHeight && window.down.low > 0;
    if (!onScreen) bringInto(window, frameOf(workArea()));
    window.across.limit(SMALLEST_WIDTH, screenWidth);
    window.down.limit(SMALLEST_HEIGHT, screenHeight);
    // A size that no window ever had can leave it where nobody sees it.
    if (window.meets(screen)) return window.rect();
    const Frame area = frameOf(workArea());
    if (!window.meets(area)) {
        window.across.centreIn(area.across);
        window.down.centreIn(area.down);
    }
    return window.rect();
}

StoredPlacement placementToStore(const PixelRect& window, const StoredPlacement& stored,
                                 const DisplayScale& scale) {
    StoredPlacement store{bounded(rounded(window.width() / scale.x)),
                          bounded(rounded(window.height() / scale.y)), stored.x, stored.y};
    if (store.x == 0 || store.y == 0) return store;
    const int64_t ix = wholeScale(scale.x), iy = wholeScale(scale.y);
    const int factor = ix > 1 && iy > 1 ? 2 : 1;
    store.x = bounded(store.x + (int64_t{window.right} - store.x) / ix * factor);
    store.y = bounded(store.y + (int64_t{window.bottom} - store.y) / iy * factor);
    return store;
}

PixelRect limitSizing(const PixelRect& proposed, const SizeLimits& limits, const DisplayScale& scale) {
    PixelRect sized = proposed;
    const int32_t minWidth = bounded(rounded(limits.minWidth * scale.x));
    const int32_t minHeight = bounded(rounded(limits.minHeight * scale.y));
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
