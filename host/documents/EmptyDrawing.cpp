#include "host/documents/EmptyDrawing.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "host/services/DrawingColors.h"

namespace {

constexpr COLORREF SPACE = DRAWING_BACKGROUND;
constexpr COLORREF GRID_LINE = RGB(41, 49, 58);
constexpr COLORREF GRID_MAIN_LINE = RGB(52, 61, 72);
constexpr COLORREF AXIS_X = RGB(200, 84, 76);
constexpr COLORREF AXIS_Y = RGB(96, 176, 96);
constexpr COLORREF AXIS_Z = RGB(92, 140, 220);
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

class Pen {
  public:
    Pen(HDC dc, int width, COLORREF color)
        : m_dc(dc), m_pen(CreatePen(PS_SOLID, width, color)), m_former(SelectObject(dc, m_pen)) {}
    ~Pen() {
        SelectObject(m_dc, m_former);
        DeleteObject(m_pen);
    }
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

  private:
    HDC m_dc;
    HPEN m_pen;
    HGDIOBJ m_former;
};

}  // namespace

void paintEmptyDrawing(HDC dc, const RECT& area, int dpi) {
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    fill(dc, area.left, area.top, area.right, area.bottom, SPACE);
    paintGrid(dc, area, MulDiv(GRID_STEP, dpi, USER_DEFAULT_SCREEN_DPI));
    paintAxes(dc, area, dpi, {});
    RestoreDC(dc, saved);
}

void paintAxes(HDC dc, const RECT& area, int dpi, const HostMatrix3d& viewing) {
    const auto scaled = [=](int pixels) { return MulDiv(pixels, dpi, USER_DEFAULT_SCREEN_DPI); };
    // What points to the left or downward has its place, too.
    const auto& right = viewing.entry[0];
    const auto& up = viewing.entry[1];
    const double toLeft = std::max(0.0, -std::min({right[0], right[1], right[2]}));
    const double down = std::max(0.0, -std::min({up[0], up[1], up[2]}));
    const int x = area.left + scaled(AXIS_INSET) + static_cast<int>(toLeft * scaled(AXIS_LENGTH));
    const int y = area.bottom - scaled(AXIS_INSET) - static_cast<int>(down * scaled(AXIS_LENGTH));
    const int saved = SaveDC(dc);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, LETTER);
    SetTextAlign(dc, TA_CENTER | TA_TOP);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    static constexpr COLORREF colors[] = {AXIS_X, AXIS_Y, AXIS_Z};
    for (int axis = 0; axis < 3; ++axis) {
        // One that points at who looks would be a dot.
        if (std::hypot(right[axis], up[axis]) < 0.1) continue;
        const auto along = [&](double length) {
            return POINT{x + static_cast<LONG>(std::lround(right[axis] * length)),
                         y - static_cast<LONG>(std::lround(up[axis] * length))};
        };
        const Pen pen(dc, scaled(2), colors[axis]);
        const POINT end = along(scaled(AXIS_LENGTH)), letter = along(scaled(AXIS_LENGTH + 10));
        MoveToEx(dc, x, y, nullptr);
        LineTo(dc, end.x, end.y);
        TextOutW(dc, letter.x, letter.y - scaled(8), &L"XYZ"[axis], 1);
    }
    RestoreDC(dc, saved);
}
