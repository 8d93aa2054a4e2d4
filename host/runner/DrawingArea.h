// What the main frame shows where the drawing will be: an empty model space with its axes.
#pragma once

#include <windows.h>

// `dpi`: dots per inch of the display.
void paintDrawingArea(HDC dc, const RECT& area, int dpi);
