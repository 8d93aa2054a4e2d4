// How many device pixels go to one pixel of 96 dots per inch.
#pragma once

#include <windows.h>

struct DisplayScale {
    double x;
    double y;
};

// Of that monitor or, with null, of the primary one.
DisplayScale displayScale(HMONITOR monitor);
