#include "host/runner/DrawingArea.h"

#include "host/services/DrawingColors.h"

#include <initializer_list>

namespace {

constexpr COLORREF SPACE = DRAWING_BACKGROUND;
constexpr COLORREF GRID_LINE = RGB(41, 49, 58);
constexpr COLORREF GRID_MAIN_LINE = RGB(52, 61, 72);
constexpr COLORREF AXIS_X = RGB(200, 84, 76);
constexpr COLORREF AXIS_Y = RGB(96, 176, 96);
constexpr COLORREF LETTER = DRAWING_FOREGROUND;

// Pixels at 96 dots per inch.
constexpr int GRID_STEP = 24;
constexpr int GRID_MAIN_EVERY = 5;
constexpr int AXIS_INSET = 28;
constexpr int AXIS_LENGTH = 56;

void fill(HDC dc, int left, int top, int right, int bottom, COLORREF color) {
    const RECT rect = {left, top, right, bottom};
    SetDCBrushColor(dc, color);
    FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void paintGrid(HDC dc, const RECT& area, int step) {
    for (const COLORREF color : {GRID_LINE, GRID_MAIN_LINE}) {
        const int stride = color == GRID_LINE ? step : step * GRID_MAIN_EVERY;
        for (int x = area.left + stride; x < area.right; x += stride) {
            fill(dc, x, area.top, x + 1, area.bottom, color);
        }
        for (int y = area.bottom - stride; y > area.top; y -= stride) {
            fill(dc, area.left, y, area.right, y + 1, color);
        }
    }
}

void paintAxes(HDC dc, const RECT& area, int dpi) {
    const auto scaled = [=](int pixels) { return MulDiv(pixels, dpi, USER_DEFAULT_SCREEN_DPI); };
    const int x = area.left + scaled(AXIS_INSET);
    const int y = area.bottom - scaled(AXIS_INSET);
    const int length = scaled(AXIS_LENGTH);
    const int width = scaled(2);
    fill(dc, x, y - width, x + length, y, AXIS_X);
    fill(dc, x, y - length, x + width, y, AXIS_Y);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, LETTER);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    TextOutW(dc, x + length + scaled(4), y - scaled(8), L"X", 1);
    TextOutW(dc, x - scaled(3), y - length - scaled(16), L"Y", 1);
}

}  // namespace

void paintDrawingArea(HDC dc, const RECT& area, int dpi) {
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    fill(dc, area.left, area.top, area.right, area.bottom, SPACE);
    paintGrid(dc, area, MulDiv(GRID_STEP, dpi, USER_DEFAULT_SCREEN_DPI));
    paintAxes(dc, area, dpi);
    RestoreDC(dc, saved);
}
