// The same lines by the platform's own system for three dimensions.
#pragma once

#include <windows.h>

#include <span>

#include "host/graphics/Scene.h"
#include "src/platform/host/HostGeometry.h"

class OpenGlLines {
  public:
    OpenGlLines(HWND window, std::span<const graphics::LinePiece> lines);
    ~OpenGlLines();
    OpenGlLines(const OpenGlLines&) = delete;
    OpenGlLines& operator=(const OpenGlLines&) = delete;

    // Whether there is such a system here.
    bool works() const { return m_context; }
    // From scene points to the window's pixels, y upward.
    void draw(const HostMatrix3d& device) const;

  private:
    HWND m_window;
    HDC m_dc;
    HGLRC m_context = nullptr;
    unsigned m_list = 0;
};
