// A picture in memory, with 32 bits a pixel, that tests draw on and look at.
#pragma once

#include <windows.h>

#include "src/platform/mfc/Drawing.h"

class Canvas {
  public:
    Canvas(int width, int height) : m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32};
        void* bits;
        m_bitmap.reset(CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_former = SelectObject(m_dc, m_bitmap.get());
    }
    ~Canvas() { SelectObject(m_dc, m_former); }

    const CDC& dc() const { return m_dc; }

    // In pixels, whatever the mapping is.
    COLORREF at(int x, int y) const {
        SaveDC(m_dc);
        SetMapMode(m_dc, MM_TEXT);
        SetViewportOrgEx(m_dc, 0, 0, nullptr);
        SetWindowOrgEx(m_dc, 0, 0, nullptr);
        const COLORREF color = GetPixel(m_dc, x, y);
        RestoreDC(m_dc, -1);
        return color;
    }

  private:
    OwnedDC m_dc;
    UniqueBitmap m_bitmap;
    HGDIOBJ m_former;
};
