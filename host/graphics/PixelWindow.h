// Pixels in memory that are shown on a window: where another way of drawing would take the place of ours.
#pragma once

#include <windows.h>

#include "host/graphics/Raster.h"

namespace graphics {

class PixelWindow {
  public:
    // The window may be gone before this object; then nothing is shown.
    explicit PixelWindow(HWND window) : m_window(window) {}
    ~PixelWindow() { release(); }
    PixelWindow(const PixelWindow&) = delete;
    PixelWindow& operator=(const PixelWindow&) = delete;

    HWND window() const { return m_window; }
    // Pixels; the content is lost.
    void resize(int width, int height);
    Raster& raster() { return m_raster; }
    int width() const { return m_raster.width(); }
    int height() const { return m_raster.height(); }
    // Brings all to the window's client area.
    void show() const;

  private:
    void release();

    HWND m_window;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_former = nullptr;
    Raster m_raster;
};

}  // namespace graphics
