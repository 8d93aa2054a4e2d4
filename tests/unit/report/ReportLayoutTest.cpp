// Where the parts of the report's dialog lie, and how its scroll bar moves.
#include <gtest/gtest.h>

#include "src/report/ReportTabLayout.h"
#include "src/report/SheetLayout.h"

namespace {

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

TEST(ReportTab, LaysOutItsPagesAndTheRowOfButtonsBelow) {
    const ReportTabLayout layout(588, 480, 21);
    EXPECT_EQ(layout.preview, (PixelRect{4, 25, 561, 476}));
    EXPECT_EQ(layout.drawing, (PixelRect{4, 25, 582, 474}));
    EXPECT_EQ(layout.scrollBar, (PixelRect{562, 25, 579, 475}));
    EXPECT_EQ(reportButton(0, 6, 588, 480), (PixelRect{54, 498, 129, 521}));
    EXPECT_EQ(reportButton(5, 6, 588, 480), (PixelRect{464, 498, 539, 521}));
    EXPECT_EQ(reportButton(0, 0, 400, 300).left, -46);
}

TEST(ReportScrolling, GoesByItsOwnSteps) {
    constexpr int LIMIT = 100, THUMB = 77;
    const auto from = [](int position, unsigned request) {
        return scrolledTo(request, position, LIMIT, THUMB);
    };
    EXPECT_EQ(from(3, SCROLL_LINE_UP), 0);
    EXPECT_EQ(from(7, SCROLL_LINE_UP), 1);
    EXPECT_EQ(from(50, SCROLL_LINE_DOWN), 56);
    EXPECT_EQ(from(97, SCROLL_LINE_DOWN), 99);
    EXPECT_EQ(from(100, SCROLL_LINE_DOWN), 99);
    EXPECT_EQ(from(4, SCROLL_PAGE_UP), -6);
    EXPECT_EQ(from(95, SCROLL_PAGE_DOWN), 105);
    EXPECT_EQ(from(5, SCROLL_THUMB_POSITION), THUMB);
    EXPECT_EQ(from(5, SCROLL_THUMB_TRACK), THUMB);
    EXPECT_EQ(from(5, SCROLL_TOP), 0);
    EXPECT_EQ(from(5, SCROLL_BOTTOM), 99);
    EXPECT_EQ(from(5, 8), 5) << "the end of scrolling";
}

}  // namespace
