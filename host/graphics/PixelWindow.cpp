#include "host/graphics/PixelWindow.h"

namespace graphics {
namespace {

// So that a wrong size can't ask for all memory.
constexpr int MOST_PIXELS = 16'384;

}  // namespace

void PixelWindow::release() {
    if (!m_dc) return;
    SelectObject(m_dc, m_former);
    DeleteObject(m_bitmap);
    DeleteDC(m_dc);
    m_dc = nullptr;
    m_raster.attach(nullptr, 0, 0);
}

void PixelWindow::resize(int width, int height) {
    if (m_dc && width == this->width() && height == this->height()) return;
    release();
    if (width <= 0 || height <= 0 || width > MOST_PIXELS || height > MOST_PIXELS) return;
    BITMAPINFO info{};
    info.bmiHeader = {.biSize = sizeof info.bmiHeader,
                      .biWidth = width,
                      // Negative: from the top.
                      .biHeight = -height,
                      .biPlanes = 1,
                      .biBitCount = 32,
                      .biCompression = BI_RGB};
    void* pixels = nullptr;
    m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!m_bitmap) return;
    m_dc = CreateCompatibleDC(nullptr);
    m_former = SelectObject(m_dc, m_bitmap);
    m_raster.attach(static_cast<uint32_t*>(pixels), width, height);
}

void PixelWindow::show() const {
    if (!m_dc || !IsWindow(m_window)) return;
    const HDC dc = GetDC(m_window);
    BitBlt(dc, 0, 0, width(), height(), m_dc, 0, 0, SRCCOPY);
    ReleaseDC(m_window, dc);
}

}  // namespace graphics
