#include "src/platform/buttons/ButtonLook.h"

#include <gtest/gtest.h>

TEST(ButtonLook, TheStrongestStateShows) {
    EXPECT_EQ(buttonFace({.disabled = true, .pressed = true, .hover = true}), ButtonFace::disabled);
    EXPECT_EQ(buttonFace({.pressed = true, .hover = true}), ButtonFace::pressed);
    EXPECT_EQ(buttonFace({.hover = true, .isDefault = true}), ButtonFace::hot);
    EXPECT_EQ(buttonFace({.isDefault = true}), ButtonFace::defaulted);
    EXPECT_EQ(buttonFace({.focused = true}), ButtonFace::defaulted);
    EXPECT_EQ(buttonFace({}), ButtonFace::normal);
}

TEST(ButtonParts, IconAndTextStandTogetherInTheMiddle) {
    const ButtonParts both = placeButtonParts({10, 0, 100, 30}, {16, 16}, {40, 13}, 4);
    EXPECT_EQ(both.icon.left, 30);
    EXPECT_EQ(both.icon.top, 7);
    EXPECT_EQ(both.text.left, 50);
    EXPECT_EQ(both.text.top, 8);
    EXPECT_EQ(both.text.width, 40);
}

TEST(ButtonParts, AloneEitherIsInTheMiddleWithoutAGap) {
    EXPECT_EQ(placeButtonParts({0, 0, 100, 30}, {16, 16}, {}, 4).icon.left, 42);
    EXPECT_EQ(placeButtonParts({0, 0, 100, 30}, {}, {40, 13}, 4).text.left, 30);
}

TEST(ButtonParts, WhatIsTooWideStartsAtTheEdgeAndTheTextGetsTheRest) {
    const ButtonParts wide = placeButtonParts({5, 0, 50, 20}, {16, 16}, {200, 13}, 4);
    EXPECT_EQ(wide.icon.left, 5);
    EXPECT_EQ(wide.text.left, 25);
    EXPECT_EQ(wide.text.width, 30);
    EXPECT_EQ(placeButtonParts({0, 0, 10, 20}, {16, 16}, {20, 13}, 4).text.width, 0);
}
