// A slide past the gate's comparison, and what its drawings do.
#include "tests/fuzz/Fuzz.h"
#include "tests/support/slides/MadeSlide.h"
#include "tests/support/slides/TestSurface.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // No image passes both halves of the gate.
    const std::span<const uint8_t> bytes(data, size);
    require(!slideMagicMatches(bytes) || !readSlideHeader(bytes));

    const OpenSlide slide({data, data + size});
    const int choice = size ? data[size - 1] : 0;
    const PixelRect rect{choice & 1 ? -7 : 5, choice & 2 ? INT32_MAX : 9, choice & 4 ? INT32_MIN : 300,
                         choice & 8 ? -1 : 200};
    const int monochrome = choice >> 4 & 1, flag = choice >> 5 & 1, other = choice >> 6 & 1;
    TestSurface plain, flipped, scaled;
    slide.PrepareDC(plain, rect, flag, other);
    slide.SetColors(plain, 0, 0xFFFFFF);
    slide.Draw(plain, monochrome);
    slide.DrawFlipped(flipped, rect.right, monochrome);
    slide.DrawInRect(scaled, rect, monochrome, flag);

    // All draw the same records, which have a bounded number of bytes for each line and corner.
    require(flipped.lines() == plain.lines() && flipped.corners() == plain.corners());
    if (slide.GetExtents().cx && slide.GetExtents().cy)
        require(scaled.lines() == plain.lines() && scaled.corners() == plain.corners());
    require(3 * plain.lines() + 6 * plain.corners() <= size);
    return 0;
}
