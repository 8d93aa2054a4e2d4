// Bitmaps of the device as device-independent ones.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

// The bitmap with 8 bits a pixel: a header of 40 bytes, 256 palette entries of 4 bytes, and the rows, each
// padded to 32 bits. The colours become those that the platform's palette has. `bitmap` isn't selected
// anywhere; `dc` is the screen's. Empty where it fails, and for the compression BI_BITFIELDS, which tells of
// colours by masks.
std::vector<uint8_t> dibBlock(HBITMAP bitmap, HDC dc, uint32_t compression);
