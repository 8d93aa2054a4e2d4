// How a drag on the drawing preview moves its view, and where the orbit gadget stands. Window-free; points
// are client pixels, y downward.
#pragma once

#include <array>

#include "src/platform/host/HostGeometry.h"

struct ViewPoint {
    int x = 0, y = 0;
};

// The turn of an arcball, in radians: the view is rolled by `roll`, orbited by (0, `tilt`), (`swing`, 0) and
// (0, -`tilt`), and rolled back.
struct ArcballTurn {
    double roll;
    double tilt;
    double swing;
};

// The turn that brings what lies on the ball under `last` to `p`. The ball stands in the middle of
// `viewport`, its radius is 0.4 of the shorter side; points beside it count as on its rim.
ArcballTurn arcballTurn(const HostGsRect& viewport, ViewPoint last, ViewPoint p);

// Where the vector of a pan points: pixels with y upward, against the drag.
HostVector3d panVector(ViewPoint last, ViewPoint p);

// The factor of a drag by `dy` pixels in a window of that height.
double dragZoomFactor(double dy, int clientHeight);

// A circle with four handles on it.
struct OrbitGadgetPlaces {
    HostGsRect circle;
    ViewPoint centre;
    // At the top, the bottom, the left and the right of the circle.
    std::array<ViewPoint, 4> handles;
};
constexpr int ORBIT_HANDLE_RADIUS = 9;
OrbitGadgetPlaces orbitGadgetPlaces(const HostGsRect& window);
