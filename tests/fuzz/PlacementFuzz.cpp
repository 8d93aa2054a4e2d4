// Whatever the profile holds, a window starts where a person sees it, and what is stored of it brings it back
// there.
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "src/dialog/Placement.h"

namespace {

constexpr int SCREEN_WIDTH = 1280, SCREEN_HEIGHT = 1024;
constexpr double SCALES[] = {1, 1.25, 1.5, 2, 3.5};

bool meets(const PixelRect& window, const PixelRect& area) {
    return window.left < area.right && window.right > area.left && window.top < area.bottom &&
           window.bottom > area.top;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    StoredPlacement stored;
    if (size != 1 + sizeof stored) return 0;
    std::memcpy(&stored, data + 1, sizeof stored);
    const double factor = SCALES[data[0] % 5];
    const DisplayScale scale{factor, factor};
    const PixelRect screen{0, 0, SCREEN_WIDTH, SCREEN_HEIGHT}, second{-1920, -40, 0, 1040};
    const PixelRect area = data[0] & 0x80 ? second : screen;
    const auto restore = [&](const StoredPlacement& from) {
        return restorePlacement(from, {100, 100, 500, 400}, SCREEN_WIDTH, SCREEN_HEIGHT, scale,
                                [&] { return area; });
    };
    const PixelRect window = restore(stored);
    if (!meets(window, screen) && !meets(window, area)) std::abort();
    if (window.width() < 200 || window.width() > SCREEN_WIDTH + 8) std::abort();
    if (window.height() < 100 || window.height() > SCREEN_HEIGHT + 8) std::abort();
    const StoredPlacement again = placementToStore(window, stored, scale);
    // Where the position is stored at all, and nothing is lost to a scale, the window comes back.
    const bool seen =
        window.left >= 0 && window.top > 0 && window.right <= SCREEN_WIDTH && window.bottom < SCREEN_HEIGHT;
    if (factor == 1 && stored.x != 0 && stored.y != 0 && seen && !(restore(again) == window)) std::abort();
    return 0;
}
