#include "host/drive/PictureDifference.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

Picture gray(int width, int height) {
    Picture picture(width, height);
    std::fill(picture.pixels.begin(), picture.pixels.end(), uint8_t{200});
    return picture;
}

TEST(PictureDifference, AShadeAndASinglePointAreNotSeen) {
    const Picture approved = gray(300, 200);
    Picture taken = approved;
    for (uint8_t& part : taken.pixels) part = 208;
    EXPECT_TRUE(compare(approved, taken).looksSame());
    *taken.at(299, 199) = 0;
    EXPECT_EQ(compare(approved, taken).differing, 1);
    EXPECT_TRUE(compare(approved, taken).looksSame());
    for (uint8_t& part : taken.pixels) part = 209;
    EXPECT_FALSE(compare(approved, taken).looksSame());
    EXPECT_EQ(compare(approved, taken).text(), L"60000 of 60000 points differ");
}

// A point beside a letter makes it another one: "i" is a small "l".
TEST(PictureDifference, AFewPointsOfALetterAreSeen) {
    const Picture approved = gray(300, 200);
    Picture taken = approved;
    for (int y = 50; y < 54; ++y) taken.at(20, y)[1] = 0;
    EXPECT_FALSE(compare(approved, taken).looksSame());
}

TEST(PictureDifference, WhatLiesBeyondOneOfThemIsMarked) {
    const Picture approved = gray(10, 20);
    const Picture taken = gray(20, 10);
    EXPECT_FALSE(compare(approved, taken).looksSame());
    EXPECT_EQ(compare(approved, taken).text(), L"the sizes differ");
    const Picture marked = markDifferences(approved, taken);
    ASSERT_EQ(marked.width, 20);
    ASSERT_EQ(marked.height, 20);
    const auto isRed = [&](int x, int y) { return marked.at(x, y)[0] == 0 && marked.at(x, y)[2] == 255; };
    EXPECT_FALSE(isRed(9, 9));
    EXPECT_TRUE(isRed(10, 9));
    EXPECT_TRUE(isRed(9, 10));
    EXPECT_TRUE(isRed(19, 19));
}

}  // namespace
