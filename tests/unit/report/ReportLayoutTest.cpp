// Where the sheet of a report lies. The parts of its dialog are for its session.
#include <gtest/gtest.h>

#include "src/report/SheetLayout.h"

TEST(Sheet, HasTheShapeOfAPage) {
    // 300 * 22 / 15 is 440 exactly, which no double is.
    EXPECT_EQ(reportPageHeight(300), 444);
    EXPECT_EQ(reportPageHeight(301), 445);
    EXPECT_EQ(reportPageHeight(557), 820);
    EXPECT_EQ(reportPageHeight(0), 4);
}

TEST(Sheet, LiesOnTheGroundWithAShadowAndMovesWithTheBar) {
    const SheetLayout top({0, 0, 300, 400}, 0);
    EXPECT_EQ(top.page, (PixelRect{8, 4, 281, 444}));
    EXPECT_EQ(top.ground, (PixelRect{0, 0, 300, 444}));
    EXPECT_EQ(top.paper, (PixelRect{8, 4, 281, 444}));
    EXPECT_EQ(top.rightShadow, (PixelRect{281, 12, 291, 444}));
    EXPECT_EQ(top.bottomShadow, (PixelRect{16, 444, 291, 454}));
    const SheetLayout moved({0, 0, 300, 400}, 50);
    EXPECT_EQ(moved.page, top.page);
    EXPECT_EQ(moved.ground, top.ground);
    EXPECT_EQ(moved.paper, (PixelRect{8, -46, 281, 394}));
    EXPECT_EQ(moved.rightShadow, (PixelRect{281, -38, 291, 394}));
    EXPECT_EQ(moved.bottomShadow, (PixelRect{16, 394, 291, 404}));
}

TEST(Sheet, ScrollsUntilItsEndShows) {
    EXPECT_EQ(reportScrollRange({0, 0, 300, 400}), 8);  // 444 - 4 - 400 + 46 = 86
    EXPECT_EQ(reportScrollRange({0, 0, 300, 186}), 30);
    EXPECT_EQ(reportScrollRange({0, 0, 300, 700}), -21);
}
