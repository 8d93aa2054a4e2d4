// What this process holds of the system's resources, counted for tests that look for leaks.
#pragma once

struct HeldResources {
    int windows;        // of this process, children too
    int gdiObjects;     // pens, brushes, fonts, bitmaps, regions, device contexts ...
    int kernelHandles;  // files, events, threads ...
};

// -1 where the system doesn't tell.
HeldResources heldResources();
