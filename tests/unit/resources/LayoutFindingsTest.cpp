// Where controls of an opened dialog stand, and how well their texts stand out.
#include "host/runner/LayoutFindings.h"

#include <gtest/gtest.h>

#include "host/runner/Contrast.h"

TEST(LayoutFindings, overlapsButWhatSurroundsAndWhatStandsOnPages) {
    constexpr uint32_t groupBox = 7, etchedFrame = 0x12;
    const std::vector<PlacedControl> controls{
        {1, L"Button", groupBox, {0, 0, 100, 50}},
        {2, L"Edit", 0, {10, 10, 60, 20}},
        {3, L"Edit", 0, {60, 10, 95, 20}},
        {4, L"Edit", 0, {90, 40, 120, 60}},
        {5, L"SysTabControl32", 0, {0, 100, 100, 200}},
        {6, L"Edit", 0, {10, 120, 50, 140}},
        {7, L"Button", 0, {10, 130, 50, 150}},
        {8, L"Static", etchedFrame, {150, 0, 200, 50}},
        {9, L"Static", 0, {160, 10, 170, 20}},
        {10, L"Static", 0, {165, 15, 201, 20}},
    };
    EXPECT_EQ(findMisplaced(controls, 200, 200),
              (std::vector<std::wstring>{
                  L"control 4 overlaps control 1: move one of them",
                  L"control 10 overlaps control 8: move one of them",
                  L"control 10 overlaps control 9: move one of them",
                  L"control 10 lies outside of the dialog: move it, or make the dialog larger",
              }));
}

// The two ends of the scale, and a gray that stands between passing and failing on white.
TEST(Contrast, isThatOfTheStrongestColorToTheGround) {
    using Pixels = std::vector<uint32_t>;
    EXPECT_DOUBLE_EQ(contrastOf(Pixels{0xFFFFFF, 0xFFFFFF, 0xFF000000, 0x808080}), 21);
    EXPECT_DOUBLE_EQ(contrastOf(Pixels{0x123456, 0x123456}), 1);
    EXPECT_DOUBLE_EQ(contrastOf(Pixels{}), 1);
    EXPECT_NEAR(contrastOf(Pixels{0xFFFFFF, 0xFFFFFF, 0x767676}), 4.54, 0.01);
    EXPECT_NEAR(contrastOf(Pixels{0xFFFFFF, 0xFFFFFF, 0x777777}), 4.48, 0.01);
}
