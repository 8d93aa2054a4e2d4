// The colors of the drawing area.
#pragma once

#include <windows.h>

constexpr COLORREF DRAWING_BACKGROUND = RGB(33, 40, 48);
constexpr COLORREF DRAWING_FOREGROUND = RGB(190, 198, 206);

constexpr COLORREF DRAWING_COLORS[] = {DRAWING_BACKGROUND, DRAWING_FOREGROUND};
