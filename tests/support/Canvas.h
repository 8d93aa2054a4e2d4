// A picture in memory, with 32 bits a pixel, that tests draw on and look at.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "src/platform/mfc/Drawing.h"

class Canvas {
  public:
    Canvas(int width, int height) : m_dc(CreateCompatibleDC(nullptr)), m_width(width), m_height(height) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32};
        void* dots;
        m_bitmap.reset(CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &dots, nullptr, 0));
        m_dots = static_cast<uint32_t*>(dots);
        m_former = SelectObject(m_dc, m_bitmap.get());
    }
    ~Canvas() { SelectObject(m_dc, m_former); }

    const CDC& dc() const { return m_dc; }

    // All dots as 0xRRGGBB, row by row from the top.
    std::vector<uint32_t> dots() const {
        GdiFlush();
        std::vector<uint32_t> dots(m_dots, m_dots + m_width * m_height);
        for (uint32_t& dot : dots) dot &= 0xFFFFFF;
        return dots;
    }
    // In pixels, whatever the mapping is.
    COLORREF at(int x, int y) const {
        GdiFlush();
        const uint32_t dot = m_dots[y * m_width + x];
        return RGB(dot >> 16 & 0xFF, dot >> 8 & 0xFF, dot & 0xFF);
    }

  private:
    OwnedDC m_dc;
    UniqueBitmap m_bitmap;
    uint32_t* m_dots;
    HGDIOBJ m_former;
    int m_width, m_height;
};

// What a window shows at a point of its client area.
inline COLORREF colorAt(HWND window, int x, int y) {
    UpdateWindow(window);
    return GetPixel(ClientDC(window), x, y);
}

// What a window shows of itself, as Canvas::dots.
inline std::vector<uint32_t> dotsOf(HWND window) {
    UpdateWindow(window);
    RECT area;
    GetClientRect(window, &area);
    const Canvas picture(area.right, area.bottom);
    BitBlt(picture.dc(), 0, 0, area.right, area.bottom, ClientDC(window), 0, 0, SRCCOPY);
    return picture.dots();
}
