#include "src/preview/OrbitGadget.h"

uint32_t OrbitGadget::subSetAttributes(HostSubEntityTraits* traits) {
    traits->setTrueColor(0, 200, 0);
    return 0;
}

// kept: nothing is drawn here.
void OrbitGadget::subViewportDraw(HostViewportDraw*) {}
