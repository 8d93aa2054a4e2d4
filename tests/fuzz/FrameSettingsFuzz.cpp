// Whatever the file of the main frame holds, the frame starts on the screen, and what is written is read
// again.
#include "host/frame/FrameSettings.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const FrameSettings settings = parseFrameSettings({reinterpret_cast<const char*>(data), size});
    const FrameSettings again = parseFrameSettings(frameSettingsText(settings));
    require(again.history == settings.history && again.programs == settings.programs);
    require(again.place.has_value() == settings.place.has_value());
    if (!settings.place) return 0;
    constexpr FrameBox SCREEN = {-1920, -40, 1280, 1024};
    for (const int dpi : {96, 144, 480}) {
        const FrameBox box = placeWithin(*settings.place, dpi, SCREEN);
        require(box.left >= SCREEN.left && box.top >= SCREEN.top && box.right <= SCREEN.right &&
                box.bottom <= SCREEN.bottom && box.right - box.left >= 320 && box.bottom - box.top >= 240);
    }
    return 0;
}
