#include "host/graphics/Camera.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using graphics::Camera;

TEST(Camera, OrbitsTowardsItsRightAndItsUp) {
    Camera camera;
    ASSERT_TRUE(camera.setView({0, 0, 5}, {0, 0, 0}, {0, 1, 0}, 2, 2));
    ASSERT_TRUE(camera.orbit(std::acos(0.0), 0.0));
    EXPECT_NEAR(camera.position().x, 5.0, 1e-12);
    EXPECT_NEAR(camera.up().y, 1.0, 1e-12);
    ASSERT_TRUE(camera.orbit(0.0, std::acos(0.0)));
    EXPECT_NEAR(camera.position().y, 5.0, 1e-12);
    EXPECT_NEAR(camera.up().x, -1.0, 1e-12);
}

TEST(Camera, RollsAboutTheDirectionOfView) {
    Camera camera;
    ASSERT_TRUE(camera.roll(std::acos(0.0)));
    // Looking along -Z, the right hand turns Y to X.
    EXPECT_NEAR(camera.up().x, 1.0, 1e-12);
}

TEST(Camera, RefusesWhatCantBeSeen) {
    Camera camera;
    const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(camera.setView({0, 0, 1}, {0, 0, 0}, {0, 0, 1}, 1, 1));
    EXPECT_FALSE(camera.setView({0, 0, 0}, {0, 0, 0}, {0, 1, 0}, 1, 1));
    EXPECT_FALSE(camera.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, 0, 1));
    EXPECT_FALSE(camera.setView({0, nan, 1}, {0, 0, 0}, {0, 1, 0}, 1, 1));
    for (const double factor : {0.0, -1.0, nan, infinity}) EXPECT_FALSE(camera.zoom(factor));
    EXPECT_FALSE(camera.dolly({infinity, 0, 0}));
    EXPECT_FALSE(camera.roll(nan));
    EXPECT_FALSE(camera.orbit(infinity, 0));
    EXPECT_EQ(camera.width(), 1.0);
    EXPECT_EQ(camera.target().x, 0.0);
}

TEST(Camera, StaysSquareOverALongDrag) {
    Camera camera;
    for (int step = 0; step < 100'000; ++step) camera.orbit(0.013, 0.007), camera.roll(0.001);
    EXPECT_NEAR(camera.up().length(), 1.0, 1e-12);
    EXPECT_NEAR(camera.up().dotProduct(camera.back()), 0.0, 1e-12);
    EXPECT_NEAR((camera.position() - camera.target()).length(), 1.0, 1e-9);
}
