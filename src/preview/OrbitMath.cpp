#include "src/preview/OrbitMath.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float CENTRE_FACTOR = -0.5f;
constexpr float BALL_FACTOR = 0.4f;
// Kept: not the closest double to a half pi.
constexpr double QUARTER_TURN = 1.570796326795;
constexpr int GADGET_MARGIN = 20;

HostVector3d onBall(double x, double y) {
    const double square = x * x + y * y;
    if (square > 1.0) return HostVector3d{x, y, 0.0}.normal();
    // On the rim rounding may leave a trace below 0.
    return {x, y, std::sqrt(std::max(0.0, 1.0 - square))};
}

}  // namespace

ArcballTurn arcballTurn(const HostGsRect& viewport, ViewPoint last, ViewPoint p) {
    const int w = viewport.right - viewport.left;
    const int h = viewport.bottom - viewport.top;
    const int cx = viewport.left - static_cast<int>(static_cast<float>(w + 1) * CENTRE_FACTOR);
    const int cy = viewport.top - static_cast<int>(static_cast<float>(h + 1) * CENTRE_FACTOR);
    const int side = std::min(w + 1, h + 1);
    const double r = static_cast<double>(static_cast<float>(side) * BALL_FACTOR);
    // A window without an area has no ball to turn.
    if (!(r > 0.0)) return {0.0, QUARTER_TURN, 0.0};

    const auto pointOf = [&](ViewPoint at) { return onBall((at.x - cx) / r, (cy - at.y) / r); };
    const HostVector3d c = pointOf(last).crossProduct(pointOf(p));
    const double length = c.length();
    return {.roll = std::atan2(c.x, c.y),
            .tilt = (length == 0.0 ? 0.0 : std::acos(std::clamp(c.z / length, -1.0, 1.0))) + QUARTER_TURN,
            .swing = std::asin(std::min(1.0, length))};
}

HostVector3d panVector(ViewPoint last, ViewPoint p) {
    return {static_cast<double>(last.x) - p.x, static_cast<double>(p.y) - last.y, 0.0};
}

double dragZoomFactor(double dy, int clientHeight) { return 1.0 - dy / clientHeight; }

OrbitGadgetPlaces orbitGadgetPlaces(const HostGsRect& window) {
    const int halfWidth = (window.right - window.left) / 2;
    const int halfHeight = (window.bottom - window.top) / 2;
    const int r = window.right - window.left < window.bottom - window.top ? halfWidth : halfHeight;
    const int cx = window.left + halfWidth;
    const int cy = window.top + halfHeight;
    const HostGsRect circle = {cx - r + GADGET_MARGIN, cy - r + GADGET_MARGIN, cx + r - GADGET_MARGIN,
                               cy + r - GADGET_MARGIN};
    return {
        circle, {cx, cy}, {{{cx, circle.top}, {cx, circle.bottom}, {circle.left, cy}, {circle.right, cy}}}};
}
