// Whether the person has chosen colors of high contrast: then all is drawn in the system's colors.
#pragma once

#include <windows.h>

inline bool highContrastIsOn() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON);
}
