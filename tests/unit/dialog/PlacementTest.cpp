#include "src/dialog/Placement.h"

#include <gtest/gtest.h>

#include <array>

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
    EXPECT_EQ(restored({300, 250, 1000, 800}, {1, 2}), (PixelRect{700, 550, 1000, 1050}));
    EXPECT_EQ(restored({400, 300, 0, 500}, {}, {-2000, 0, 1280, 1024}), (PixelRect{-400, 200, 0, 500}))
        << "one position value is a place";
    EXPECT_EQ(restored({600, 0, 0, 0}), (PixelRect{100, 100, 700, 200})) << "one size value is a size";
}

TEST(Placement, IsCuredOfImpossibleValues) {
    EXPECT_EQ(restored({150, 80, 0, 0}), (PixelRect{100, 100, 300, 200}));
    EXPECT_EQ(restored({5000, 5000, 0, 0}).width(), SCREEN_WIDTH);
    EXPECT_EQ(restored({-300, -300, 0, 0}).width(), 200);
    EXPECT_EQ(restored({1288, 1032, 0, 0}), (PixelRect{100, 100, 1388, 1132})) << "a frame beyond the screen";
    EXPECT_EQ(restored({1289, 1033, 0, 0}), (PixelRect{100, 100, 1380, 1124}));
    EXPECT_EQ(restored({300, 200, 10, 10}, {0.3, 0.3}).width(), 200)
        << "a scale that rounds to nothing counts as 1";
}

// The last place that counts as on the screen or in the work area, and the first that doesn't, on each side.
TEST(Placement, OffTheScreenBeginsWhereNothingOfItIsSeen) {
    const auto at = [](int right, int bottom, const PixelRect& area) {
        return restored({400, 300, right, bottom}, {}, area);
    };
    const PixelRect screen{0, 0, SCREEN_WIDTH, SCREEN_HEIGHT}, upper{0, 0, SCREEN_WIDTH, 700};
    EXPECT_EQ(at(1679, 500, screen), (PixelRect{1279, 200, 1679, 500}));
    EXPECT_EQ(at(1680, 500, screen), (PixelRect{440, 200, 840, 500}));
    EXPECT_EQ(at(1, 500, screen), (PixelRect{-399, 200, 1, 500}));
    EXPECT_EQ(at(0, 500, screen), (PixelRect{440, 200, 840, 500}));
    EXPECT_EQ(at(700, 1023, upper), (PixelRect{300, 723, 700, 1023}));
    EXPECT_EQ(at(700, 1024, upper), (PixelRect{300, 200, 700, 500}));
    EXPECT_EQ(at(700, 1100, {0, 0, SCREEN_WIDTH, 801}), (PixelRect{300, 800, 700, 1100}));
    EXPECT_EQ(at(700, 1100, {0, 0, SCREEN_WIDTH, 800}), (PixelRect{300, 250, 700, 550}));
    EXPECT_EQ(at(700, 50, {0, 50, SCREEN_WIDTH, 800}), (PixelRect{300, 275, 700, 575}));
    EXPECT_EQ(at(496, 1100, {100, 0, 1280, 2000}), (PixelRect{96, 800, 496, 1100}));
    EXPECT_EQ(at(495, 1100, {100, 0, 1280, 2000}), (PixelRect{100, 800, 500, 1100}));
    EXPECT_EQ(at(700, 300, {0, 4, 1280, 800}), (PixelRect{300, 0, 700, 300}));
    // kept: at the top the bottom becomes the height alone.
    EXPECT_EQ(at(700, 300, {0, 5, 1280, 800}), (PixelRect{300, 5, 700, 300}));
}

TEST(Placement, IsStoredWithoutScaleAndAValueOfZeroStays) {
    using Four = std::array<int, 4>;
    const auto stores = [](int right, const StoredPlacement& before, const DisplayScale& scale) {
        const StoredPlacement store = placementToStore({100, 100, right, 600}, before, scale);
        return Four{store.width, store.height, store.x, store.y};
    };
    EXPECT_EQ(stores(700, {1, 2, 0, 0}, {2, 2}), (Four{300, 250, 0, 0}));
    EXPECT_EQ(stores(700, {0, 0, 5, 9}, {1, 1}), (Four{600, 500, 700, 600}));
    EXPECT_EQ(stores(701, {0, 0, 100, 100}, {2, 2}), (Four{301, 250, 700, 600}))
        << "whole scales divide first";
    EXPECT_EQ(stores(700, {0, 0, 100, 100}, {2, 1}), (Four{300, 500, 400, 600}));
    EXPECT_EQ(stores(700, {0, 0, 5, 0}, {1, 1}), (Four{600, 500, 5, 0}));
}

TEST(Sizing, OnlyRightAndBottomGiveWay) {
    const SizeLimits limits{200, 100, 400, 300};
    EXPECT_EQ(limitSizing({300, 10, 350, 20}, limits, {}), (PixelRect{300, 10, 500, 110}));
    EXPECT_EQ(limitSizing({0, 0, 900, 900}, limits, {2, 2}), (PixelRect{0, 0, 400, 300}));
    EXPECT_EQ(limitSizing({0, 0, 300, 150}, limits, {2, 2}), (PixelRect{0, 0, 400, 200}))
        << "the least alone is scaled";
    EXPECT_EQ(limitSizing({0, 0, 300, 200}, limits, {}), (PixelRect{0, 0, 300, 200}));
    EXPECT_EQ(limitSizing({0, 0, 9, 9}, {51, 51, 400, 300}, {1.5, 1.5}), (PixelRect{0, 0, 77, 77}));
    EXPECT_EQ(limitSizing({0, 0, 100, 100}, {500, 500, 300, 300}, {}), (PixelRect{0, 0, 500, 500}))
        << "the upper limit looks at what was dragged";
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

TEST(Anchors, CentresAreHalvesThatAreCutEach) {
    const PixelRect odd{10, 20, 111, 61};
    EXPECT_EQ(anchored(odd, anchorOffsets(150, odd, 400, 300), 450, 330), (PixelRect{35, 20, 136, 61}));
    EXPECT_EQ(anchored(odd, anchorOffsets(300, odd, 400, 300), 450, 330),
              (PixelRect{10, 330 / 2 - 20 - (300 - 20 - 61), 111, 330 / 2 - 20 - (300 - 20 - 61) + 41}));
}

TEST(Anchors, TwoListsOneAboveTheOtherShareTheHeight) {
    const auto grownBy = [](const PixelRect& list, HeightShares shares, int code) {
        return anchored(list, anchorOffsets(code, list, 400, 300, shares), 450, 331);
    };
    EXPECT_EQ(grownBy({10, 20, 110, 100}, {0, 50}, 63), (PixelRect{10, 20, 160, 115}));
    EXPECT_EQ(grownBy({10, 110, 110, 124}, {50, 50}, 39), (PixelRect{10, 125, 110, 139}));
    EXPECT_EQ(grownBy({10, 130, 110, 290}, {50, 100}, 64), (PixelRect{10, 145, 160, 321}));
}

TEST(Anchors, AnEdgeTooFarOutsideDoesNotFollow) {
    const PixelRect outside{20000, 20, 20100, 60};
    EXPECT_EQ(anchored(outside, anchorOffsets(35, outside, 400, 300), 450, 300), outside);
}

}  // namespace
