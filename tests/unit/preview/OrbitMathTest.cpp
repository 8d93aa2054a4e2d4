#include "src/preview/OrbitMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <tuple>
#include <vector>

#include "host/graphics/Camera.h"

namespace {

constexpr HostGsRect VIEWPORT = {0, 0, 199, 199};
constexpr int CENTRE = 100;
constexpr int RADIUS = 80;
constexpr double QUARTER = 1.570796326795;

void turnBy(graphics::Camera& camera, const ArcballTurn& turn) {
    camera.roll(turn.roll);
    camera.orbit(0, turn.tilt);
    camera.orbit(turn.swing, 0);
    camera.orbit(0, -turn.tilt);
    camera.roll(-turn.roll);
}

void drag(graphics::Camera& camera, ViewPoint from, ViewPoint to) {
    turnBy(camera, arcballTurn(VIEWPORT, from, to));
}

void expectNear(const HostVector3d& a, const HostVector3d& b, double tolerance) {
    EXPECT_NEAR(a.x, b.x, tolerance);
    EXPECT_NEAR(a.y, b.y, tolerance);
    EXPECT_NEAR(a.z, b.z, tolerance);
}

HostVector3d onBall(ViewPoint p) {
    const double x = double(p.x - CENTRE) / RADIUS, y = double(CENTRE - p.y) / RADIUS;
    const double square = x * x + y * y;
    if (square > 1.0) return HostVector3d{x, y, 0}.normal();
    return {x, y, std::sqrt(std::max(0.0, 1.0 - square))};
}

std::mt19937 g_random(20260422);
int anyOf(int least, int most) { return std::uniform_int_distribution<int>(least, most)(g_random); }

graphics::Camera anyCamera() {
    graphics::Camera camera;
    camera.orbit(anyOf(-300, 300) * 0.01, anyOf(-300, 300) * 0.01);
    camera.roll(anyOf(-300, 300) * 0.01);
    return camera;
}

// The ball is as wide as 0.4 of the shorter side, and in the middle wherever the viewport begins.
TEST(OrbitMath, TurnsFromTheCentreToTheRight) {
    for (const auto& [viewport, x, y, r] : {std::tuple(VIEWPORT, CENTRE, CENTRE, RADIUS),
                                            {HostGsRect{10, 30, 309, 129}, 160, 80, 40},
                                            {HostGsRect{10, 30, 109, 329}, 60, 180, 40}}) {
        const ArcballTurn turn = arcballTurn(viewport, {x, y}, {x + r, y});
        EXPECT_EQ(turn.roll, 0.0);
        EXPECT_DOUBLE_EQ(turn.tilt, std::acos(0.0) + QUARTER);
        EXPECT_DOUBLE_EQ(turn.swing, std::asin(1.0));
    }
    // The radius is worked out in floats: 7 * 0.4 is the float 2.8.
    EXPECT_DOUBLE_EQ(arcballTurn({0, 0, 6, 6}, {3, 3}, {4, 3}).swing, std::asin(1.0 / double(2.8f)));
    const ArcballTurn none = arcballTurn(VIEWPORT, {120, 90}, {120, 90});
    EXPECT_EQ(none.tilt, QUARTER);
    EXPECT_EQ(none.swing, 0.0);
}

TEST(OrbitMath, TheGadgetIsACircleInTheMiddleWithFourHandles) {
    const auto placed = [](const HostGsRect& window) {
        const auto [circle, centre, handles] = orbitGadgetPlaces(window);
        std::vector<int> all = {circle.left, circle.top, circle.right, circle.bottom, centre.x, centre.y};
        for (const ViewPoint& handle : handles) all.insert(all.end(), {handle.x, handle.y});
        return all;
    };
    EXPECT_EQ(placed({0, 0, 200, 100}),
              (std::vector{70, 20, 130, 80, 100, 50, 100, 20, 100, 80, 70, 50, 130, 50}));
    EXPECT_EQ(placed({5, 10, 106, 213}),
              (std::vector{25, 81, 85, 141, 55, 111, 55, 81, 55, 141, 25, 111, 85, 111}));
}

// The camera turns about its target so that what the drag took hold of on the ball comes under its end; up to
// a quarter turn, beyond which the arcsine comes back.
TEST(OrbitMath, TheFiveStepsAreTheRotationOfTheBall) {
    for (int round = 0; round < 2000; ++round) {
        const ViewPoint from = {anyOf(-20, 220), anyOf(-20, 220)}, to = {anyOf(-20, 220), anyOf(-20, 220)};
        const HostVector3d a = onBall(from), b = onBall(to);
        if (a.dotProduct(b) < 1e-6) continue;
        graphics::Camera camera = anyCamera();
        const HostMatrix3d before = camera.viewingMatrix();
        drag(camera, from, to);
        // What stood at `a` of the ball, in the world, is seen at `b` now.
        expectNear(camera.viewingMatrix() * (before.inverse() * a), b, 1e-9);
    }
}

TEST(OrbitMath, EveryDragGivesFiniteAngles) {
    // A ball whose radius has rim points that round to just beyond it.
    for (const HostGsRect viewport : {HostGsRect{0, 0, 249, 249}, HostGsRect{0, 0, 0, 0},
                                      HostGsRect{5, 5, 4, 4}, HostGsRect{-7, 3, 900, 11}}) {
        for (int round = 0; round < 3000; ++round) {
            const ArcballTurn turn = arcballTurn(viewport, {anyOf(-300, 300), anyOf(-300, 300)},
                                                 {anyOf(-300, 300), anyOf(-300, 300)});
            ASSERT_TRUE(std::isfinite(turn.roll) && std::isfinite(turn.tilt) && std::isfinite(turn.swing));
        }
    }
    const ArcballTurn rim = arcballTurn({0, 0, 249, 249}, {125 + 60, 125 - 80}, {125 - 80, 125 + 60});
    EXPECT_TRUE(std::isfinite(rim.swing));
}

TEST(OrbitMath, APanFollowsTheMouse) {
    graphics::Camera camera;
    ASSERT_TRUE(camera.setView({3, 4, 10}, {3, 4, 0}, {0, 1, 0}, 20, 20));
    const auto pixelOf = [&](const HostPoint3d& p) { return camera.worldToDevice(VIEWPORT) * p; };
    const HostPoint3d before = pixelOf({1, 2, 0});
    const HostVector3d step = panVector({50, 60}, {53, 55});
    camera.dolly(camera.viewingMatrix() * (camera.worldToDevice(VIEWPORT).inverse() * step));
    const HostPoint3d after = pixelOf({1, 2, 0});
    // Three pixels to the right and five up.
    EXPECT_NEAR(after.x - before.x, 3.0, 1e-9);
    EXPECT_NEAR(after.y - before.y, 5.0, 1e-9);
}

}  // namespace
