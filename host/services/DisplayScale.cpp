#include "host/services/DisplayScale.h"

#include <shellscalingapi.h>

DisplayScale displayScale(HMONITOR monitor) {
    if (!monitor) monitor = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
    UINT x = USER_DEFAULT_SCREEN_DPI;
    UINT y = USER_DEFAULT_SCREEN_DPI;
    // Leaves both as they are for a monitor that is gone.
    if (FAILED(GetDpiForMonitor(monitor, MDT_EFFECTIVE_DPI, &x, &y))) x = y = USER_DEFAULT_SCREEN_DPI;
    return {static_cast<double>(x) / USER_DEFAULT_SCREEN_DPI,
            static_cast<double>(y) / USER_DEFAULT_SCREEN_DPI};
}
