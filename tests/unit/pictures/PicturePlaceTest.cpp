#include "src/pictures/PicturePlace.h"

#include <gtest/gtest.h>

namespace {

PixelRect bitmapIn(PixelSize natural, PixelSize area, bool fit = false) {
    return placeOfPicture(natural, area, false, fit);
}

TEST(PicturePlace, ALargeBitmapShrinksInItsProportions) {
    EXPECT_EQ(bitmapIn({200, 100}, {100, 100}), (PixelRect{0, 25, 100, 75}));
    EXPECT_EQ(bitmapIn({100, 200}, {100, 100}), (PixelRect{25, 0, 75, 100}));
    EXPECT_EQ(bitmapIn({400, 200}, {200, 100}), (PixelRect{0, 0, 200, 100}));
    EXPECT_EQ(bitmapIn({4000, 3000}, {61, 40}), (PixelRect{4, 0, 57, 40}));
}

TEST(PicturePlace, WhatHasNoExtentTakesUpNothing) {
    EXPECT_EQ(bitmapIn({0, 10}, {100, 100}), PixelRect());
    EXPECT_EQ(bitmapIn({10, 10}, {100, 0}, true), PixelRect());
    EXPECT_EQ(bitmapIn({1, 0x7FFFFFFF}, {30000, 30000}), (PixelRect{15000, 0, 15000, 30000}));
}

}  // namespace
