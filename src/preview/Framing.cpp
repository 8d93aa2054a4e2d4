#include "src/preview/Framing.h"

#include <cmath>

namespace {

constexpr double LEAST_SIZE = 2e-11;

double sizeOr(double size, double least) { return size == 0.0 ? least : size; }

}  // namespace

ViewFrame frameOf(const HostExtents& extents, const HostVector3d& direction) {
    const HostVector3d d = direction.normal();
    const HostVector3d y = d.perpVector().normal();
    const HostVector3d x = d.crossProduct(y);
    const HostPoint3d mid = HostLineSeg3d{extents.min, extents.max}.midPoint();
    // The frame's first axis runs to the right on the screen, its second one upward.
    HostExtents seen = extents;
    seen.transformBy(HostMatrix3d::coordSystem(mid, y, x, d).inverse());
    return {.position = mid + d,
            .target = mid,
            .up = x,
            .width = sizeOr(std::fabs(seen.max.x - seen.min.x), LEAST_SIZE),
            .height = sizeOr(std::fabs(seen.max.y - seen.min.y), LEAST_SIZE)};
}
