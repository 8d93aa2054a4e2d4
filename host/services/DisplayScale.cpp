#include "host/services/DisplayScale.h"

#include <shellscalingapi.h>

namespace {

// The start of a dialog asks several times in a few milliseconds, and under Wine each answer takes three
// calls of its server. A display that is plugged in or out meanwhile is seen by the next question after that.
HMONITOR primaryMonitor() {
    constexpr ULONGLONG REMEMBERED_MS = 250;
    static HMONITOR monitor;
    static ULONGLONG found;
    const ULONGLONG now = GetTickCount64();
    if (!monitor || now - found > REMEMBERED_MS) {
        monitor = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
        found = now;
    }
    return monitor;
}

}  // namespace

DisplayScale displayScale(HMONITOR monitor) {
    if (!monitor) monitor = primaryMonitor();
    UINT x = USER_DEFAULT_SCREEN_DPI;
    UINT y = USER_DEFAULT_SCREEN_DPI;
    // Leaves both as they are for a monitor that is gone.
    if (FAILED(GetDpiForMonitor(monitor, MDT_EFFECTIVE_DPI, &x, &y))) x = y = USER_DEFAULT_SCREEN_DPI;
    return {static_cast<double>(x) / USER_DEFAULT_SCREEN_DPI,
            static_cast<double>(y) / USER_DEFAULT_SCREEN_DPI};
}
