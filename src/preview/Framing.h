// The camera that shows a box whole. Window-free.
#pragma once

#include "src/platform/host/HostGeometry.h"

// What HostGsView::setView takes.
struct ViewFrame {
    HostPoint3d position;
    HostPoint3d target;
    HostVector3d up;
    double width;
    double height;
};

// Looks at the middle of `extents` against `direction` (from the target towards the camera, of any length but
// 0), as wide and as high as the box is there; what has no width or height counts as 2e-11 wide or high.
// Extents that hold nothing give finite numbers all the same.
ViewFrame frameOf(const HostExtents& extents, const HostVector3d& direction);
