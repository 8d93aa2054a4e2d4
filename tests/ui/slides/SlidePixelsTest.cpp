// Slides on a real device context, by telling pixels.
#include <gtest/gtest.h>

#include <cstdlib>

#include "host/drive/Resources.h"
#include "src/slides/DcSurface.h"
#include "tests/support/Canvas.h"
#include "tests/ui/slides/QuarterSlide.h"

namespace {

TEST(SlidePixels, StandOnTheirFeetAndFillTheRectangle) {
    const OpenSlide slide = quarter();
    const Canvas canvas(220, 120);
    DcSurface surface(canvas.dc());
    slide.PrepareDC(surface, {10, 10, 200, 100}, 0, 1);
    slide.SetColors(surface, BLACK, WHITE);
    slide.Draw(surface, 0);
    EXPECT_EQ(canvas.at(1, 99), RED);
    EXPECT_EQ(canvas.at(97, 53), RED);
    EXPECT_EQ(canvas.at(102, 99), BLACK);
    EXPECT_EQ(canvas.at(50, 48), BLACK);
    EXPECT_EQ(canvas.at(50, 40), GREEN);
    EXPECT_EQ(canvas.at(197, 40), GREEN);
    EXPECT_EQ(canvas.at(205, 40), BLACK);
}

// The platform shrinks one extent; how far depends on the screen's pixels, which needn't be square.
TEST(SlidePixels, KeepProportionsInTheMiddleOrOverTheWholeWidth) {
    const OpenSlide slide = quarter();
    for (const int fit : {0, 1}) {
        const Canvas canvas(1000, 300);
        DcSurface surface(canvas.dc());
        slide.PrepareDC(surface, {0, 0, 200, 300}, 1, fit);
        slide.SetColors(surface, BLACK, WHITE);
        slide.Draw(surface, 0);
        const SlideSize set = surface.GetViewportExt();
        POINT origin;
        GetViewportOrgEx(canvas.dc(), &origin);
        EXPECT_EQ(canvas.at(origin.x + 2, origin.y - 2), RED);
        EXPECT_EQ(canvas.at(origin.x + set.cx / 2 + 3, origin.y - 2), BLACK);
        EXPECT_EQ(canvas.at(origin.x + 2, origin.y + set.cy / 2 - 3), BLACK);
        if (fit) {
            EXPECT_EQ(origin.x, 0);
            EXPECT_EQ(origin.y, -set.cy);
        } else {
            // The free room is the same above and below.
            EXPECT_LE(std::abs((300 - origin.y) - (origin.y + set.cy)), 1);
        }
    }
}

TEST(SlidePixels, AreTheSameInAllThreeDrawings) {
    const OpenSlide slide = quarter();
    const Canvas mapped(100, 50), flipped(100, 50), scaled(100, 50);
    DcSurface surfaces[] = {DcSurface(mapped.dc()), DcSurface(flipped.dc()), DcSurface(scaled.dc())};
    slide.PrepareDC(surfaces[0], {0, 0, 100, 50}, 0, 0);
    slide.SetColors(surfaces[0], BLACK, WHITE);
    slide.Draw(surfaces[0], 0);
    slide.DrawFlipped(surfaces[1], 50, 0);
    slide.DrawInRect(surfaces[2], {0, 0, 100, 50}, 0, 0);
    int lit = 0;
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 100; ++x) {
            lit += flipped.at(x, y) != BLACK;
            EXPECT_EQ(mapped.at(x, y), flipped.at(x, y)) << x << ' ' << y;
            EXPECT_EQ(scaled.at(x, y), flipped.at(x, y)) << x << ' ' << y;
        }
    EXPECT_GT(lit, 1250);
    // The dot stands a pixel to the right, since a line leaves out its last pixel.
    EXPECT_EQ(mapped.at(91, 5), WHITE);
    EXPECT_EQ(mapped.at(90, 5), BLACK);
}

TEST(SlideTools, AreGivenBackAndLeaveNothing) {
    MadeSlide slide({1, false}, 100, 100);
    for (int i = 0; i < 10000; ++i) slide.color(i % 256).vector(1, 1, 2, 2);
    slide.end();
    const OpenSlide open(slide);
    const Canvas canvas(20, 20);
    const auto pen = static_cast<HPEN>(GetCurrentObject(canvas.dc(), OBJ_PEN));
    const UniqueBrush brush(CreateSolidBrush(GREEN));
    const SelectedObject selected(canvas.dc(), brush.get());
    const auto before = heldResources();
    DcSurface surface(canvas.dc());
    for (const int monochrome : {0, 1}) {
        open.Draw(surface, monochrome);
        EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_PEN), pen);
        EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_BRUSH), brush.get());
    }
    EXPECT_EQ(heldResources().gdiObjects, before.gdiObjects);
}

}  // namespace
