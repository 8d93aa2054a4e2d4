#include "src/preview/OrbitGadget.h"

uint32_t OrbitGadget::subSetAttributes(HostSubEntityTraits* traits) {
    traits->setTrueColor(0, 200, 0);
    return 0;
}

// kept: all that handles of one size on the screen would need is read, and nothing is drawn.
void OrbitGadget::subViewportDraw(HostViewportDraw* draw) {
    [[maybe_unused]] const HostGsRect area = draw->viewport();
    const HostMatrix3d toView = draw->viewingMatrix() * draw->worldToDeviceMatrix().inverse();
    [[maybe_unused]] const HostVector3d sight = draw->cameraTarget() - draw->cameraPosition();
    [[maybe_unused]] const double pixel = (toView * HostVector3d{1, 0, 0}).length();
}
