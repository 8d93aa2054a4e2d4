// Whatever the file of the main frame holds, the frame starts on the screen, and what is written is read
// again.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/frame/FrameSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const FrameSettings settings = parseFrameSettings({reinterpret_cast<const char*>(data), size});
    const FrameSettings again = parseFrameSettings(frameSettingsText(settings));
    if (again.history != settings.history || again.programs != settings.programs) std::abort();
    if (again.place.has_value() != settings.place.has_value()) std::abort();
    if (!settings.place) return 0;
    constexpr FrameBox SCREEN = {-1920, -40, 1280, 1024};
    for (const int dpi : {96, 144, 480}) {
        const FrameBox box = placeWithin(*settings.place, dpi, SCREEN);
        if (box.left < SCREEN.left || box.top < SCREEN.top || box.right > SCREEN.right ||
            box.bottom > SCREEN.bottom || box.right - box.left < 320 || box.bottom - box.top < 240)
            std::abort();
    }
    return 0;
}
