#include "src/preview/Framing.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/graphics/Camera.h"

namespace {

HostExtents box(HostPoint3d a, HostPoint3d b) {
    HostExtents extents;
    extents.addPoint(a);
    extents.addPoint(b);
    return extents;
}

TEST(Framing, SeesAPlanUprightAndExactly) {
    const ViewFrame frame = frameOf(box({-1, -2, 0}, {5, 2, 0}), {0, 0, 7});
    EXPECT_EQ(frame.up.y, 1.0);
    EXPECT_EQ(frame.width, 6.0);
    EXPECT_EQ(frame.height, 4.0);
    EXPECT_EQ(frame.target.x, 2.0);
    EXPECT_EQ(frame.position.z, 1.0);

    graphics::Camera camera;
    ASSERT_TRUE(camera.setView(frame.position, frame.target, frame.up, frame.width, frame.height));
    const HostMatrix3d device = camera.worldToDevice({0, 0, 600, 400});
    EXPECT_NEAR((device * HostPoint3d{-1, -2, 0}).x, 0.0, 1e-9);
    EXPECT_NEAR((device * HostPoint3d{5, 2, 0}).x, 600.0, 1e-9);
    EXPECT_NEAR((device * HostPoint3d{5, 2, 0}).y, 400.0, 1e-9);
}

TEST(Framing, HoldsEveryCornerFromAnyDirection) {
    for (const HostVector3d direction :
         {HostVector3d{1, 0, 0}, {0, -1, 0}, {0, 0, -1}, {1, 1, 1}, {-0.01, 0.003, 1}}) {
        const HostExtents extents = box({10, 20, 30}, {11, 25, 70});
        const ViewFrame frame = frameOf(extents, direction);
        graphics::Camera camera;
        ASSERT_TRUE(camera.setView(frame.position, frame.target, frame.up, frame.width, frame.height));
        HostExtents seen = extents;
        seen.transformBy(camera.viewingMatrix());
        EXPECT_NEAR(seen.max.x - seen.min.x, frame.width, 1e-9);
        EXPECT_NEAR(seen.max.y - seen.min.y, frame.height, 1e-9);
    }
}

TEST(Framing, GivesFiniteViewsOfEmptyFlatTinyAndHugeExtents) {
    const ViewFrame flat = frameOf(box({0, 3, 0}, {4, 3, 0}), {0, 0, 1});
    EXPECT_EQ(flat.width, 4.0);
    EXPECT_EQ(flat.height, 2e-11);
    for (const HostExtents& extents :
         {HostExtents(), box({1, 1, 1}, {1, 1, 1}), box({0, 0, 0}, {1e-300, 1e-300, 0}),
          box({-1e20, -1e20, -1e20}, {1e20, 1e20, 1e20})}) {
        const ViewFrame frame = frameOf(extents, {0, 0, 1});
        for (const double number :
             {frame.position.z, frame.target.x, frame.up.y, frame.width, frame.height}) {
            EXPECT_TRUE(std::isfinite(number));
        }
    }
}

}  // namespace
