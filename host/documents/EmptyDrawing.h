// What the main frame shows of a drawing in which nothing is, and the axes in the corner of any.
#pragma once

#include <windows.h>

#include "src/platform/host/HostGeometry.h"

// `dpi`: dots per inch of the display.
void paintEmptyDrawing(HDC dc, const RECT& area, int dpi);
// The axes of the world as they are seen through `viewing`, a view's matrix.
void paintAxes(HDC dc, const RECT& area, int dpi, const HostMatrix3d& viewing);
