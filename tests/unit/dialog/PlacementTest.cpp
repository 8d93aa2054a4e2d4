#include "src/dialog/Placement.h"

#include <gtest/gtest.h>

#include "src/dialog/Anchors.h"

namespace {

constexpr int SCREEN_WIDTH = 1280, SCREEN_HEIGHT = 1024;
const PixelRect current{100, 100, 500, 400};

PixelRect restored(const StoredPlacement& stored, const DisplayScale& scale = {},
                   const PixelRect& area = {0, 0, SCREEN_WIDTH, SCREEN_HEIGHT},
                   const PixelRect& now = current) {
    return restorePlacement(stored, now, SCREEN_WIDTH, SCREEN_HEIGHT, scale, [&] { return area; });
}

TEST(Placement, ComesFromTheProfileOrTheTemplate) {
    EXPECT_EQ(restored({}), current);
    EXPECT_EQ(restored({600, 500, 0, 0}), (PixelRect{100, 100, 700, 600}));
    EXPECT_EQ(restored({600, 500, 800, 700}), (PixelRect{200, 200, 800, 700}));
    EXPECT_EQ(restored({300, 250, 0, 0}, {2, 2}), (PixelRect{100, 100, 700, 600}));
    EXPECT_EQ(restored({300, 250, 1000, 800}, {2, 2}), (PixelRect{700, 550, 1300, 1050}));
}

TEST(Placement, IsCuredOfImpossibleValues) {
    EXPECT_EQ(restored({150, 80, 0, 0}), (PixelRect{100, 100, 300, 200}));
    EXPECT_EQ(restored({5000, 5000, 0, 0}).width(), SCREEN_WIDTH);
    EXPECT_EQ(restored({-300, -300, 0, 0}).width(), 200);
    EXPECT_EQ(restored({300, 200, 10, 10}, {0.3, 0.3}).width(), 200)
        << "a scale that rounds to nothing counts as 1";
}

TEST(Placement, OffTheScreenItComesBackIntoTheWorkArea) {
    const PixelRect second{1280, 0, 2280, 800};
    EXPECT_EQ(restored({400, 300, 9000, 500}, {}, second), (PixelRect{1580, 200, 1980, 500}));
    EXPECT_EQ(restored({400, 300, 1500, 300}, {}, second), (PixelRect{1280, 0, 1680, 300}))
        << "left of the area, it goes to its edge";
    // kept: at the top the bottom becomes the height alone.
    EXPECT_EQ(restored({400, 300, 600, 150}, {}, {0, 50, 1280, 800}), (PixelRect{200, 50, 600, 300}));
}

TEST(Placement, IsStoredWithoutScaleAndAValueOfZeroStays) {
    const StoredPlacement plain = placementToStore({100, 100, 700, 600}, {1, 2, 0, 0}, {2, 2});
    EXPECT_EQ(plain.width, 300);
    EXPECT_EQ(plain.height, 250);
    EXPECT_EQ(plain.x, 0);
    const StoredPlacement tracked = placementToStore({100, 100, 700, 600}, {0, 0, 5, 9}, {1, 1});
    EXPECT_EQ(tracked.x, 700);
    EXPECT_EQ(tracked.y, 600);
    const StoredPlacement scaled = placementToStore({100, 100, 700, 600}, {0, 0, 100, 100}, {2, 2});
    EXPECT_EQ(scaled.x, 700);
    EXPECT_EQ(placementToStore({100, 100, 700, 600}, {0, 0, 5, 0}, {1, 1}).x, 5);
}

TEST(Sizing, OnlyRightAndBottomGiveWay) {
    const SizeLimits limits{200, 100, 400, 300};
    EXPECT_EQ(limitSizing({300, 10, 350, 20}, limits, {}), (PixelRect{300, 10, 500, 110}));
    EXPECT_EQ(limitSizing({0, 0, 900, 900}, limits, {}), (PixelRect{0, 0, 400, 300}));
    EXPECT_EQ(limitSizing({0, 0, 300, 150}, limits, {2, 2}), (PixelRect{0, 0, 400, 200}))
        << "the least is scaled";
    EXPECT_EQ(limitSizing({0, 0, 300, 200}, limits, {}), (PixelRect{0, 0, 300, 200}));
}

TEST(Start, TheTestOfTheHeightLooksAtTheWidth) {
    const SizeLimits limits{300, 400, 0, 0};
    const StartPlacement narrow = startPlacement({10, 20, 110, 120}, limits);
    EXPECT_EQ(narrow.rect, (PixelRect{10, 20, 310, 420}));
    EXPECT_EQ(narrow.movedHeight, 420);
    const StartPlacement wide = startPlacement({10, 20, 610, 120}, limits);
    EXPECT_EQ(wide.rect, (PixelRect{10, 20, 610, 120}));
    EXPECT_EQ(wide.movedHeight, 100);
}

// What a control of 10, 20 to 110, 60 becomes when a client area of 400 by 300 grows by 50 and 30.
PixelRect grown(int code) {
    const PixelRect control{10, 20, 110, 60};
    return anchored(control, anchorOffsets(code, control, 400, 300), 450, 330);
}

TEST(Anchors, EachWeightMovesItsEdges) {
    EXPECT_EQ(grown(0), (PixelRect{10, 20, 110, 60}));
    EXPECT_EQ(grown(1), (PixelRect{10, 50, 110, 60}));
    EXPECT_EQ(grown(10), (PixelRect{60, 20, 110, 60}));
    EXPECT_EQ(grown(25), (PixelRect{10, 20, 160, 60}));
    EXPECT_EQ(grown(38), (PixelRect{10, 20, 110, 90}));
    EXPECT_EQ(grown(63), (PixelRect{10, 20, 160, 90}));
    EXPECT_EQ(grown(35), (PixelRect{60, 20, 160, 60}));
    EXPECT_EQ(grown(75), (PixelRect{60, 50, 160, 90}));
    EXPECT_EQ(grown(85), grown(75));
    EXPECT_EQ(grown(150), (PixelRect{35, 20, 135, 60}));
    // kept: the vertical centre takes the whole height, so the control jumps.
    EXPECT_EQ(grown(300).top, 330 / 2 - 20 - (300 - 20 - 60));
    EXPECT_EQ(grown(-5), grown(0));
}

}  // namespace
