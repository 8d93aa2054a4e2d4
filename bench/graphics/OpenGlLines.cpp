#include "bench/graphics/OpenGlLines.h"

#include <GL/gl.h>

OpenGlLines::OpenGlLines(HWND window, std::span<const graphics::LinePiece> lines)
    : m_window(window), m_dc(GetDC(window)) {
    PIXELFORMATDESCRIPTOR format{};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | PFD_DOUBLEBUFFER;
    format.cColorBits = 32;
    if (!SetPixelFormat(m_dc, ChoosePixelFormat(m_dc, &format), &format)) return;
    m_context = wglCreateContext(m_dc);
    if (!m_context) return;
    wglMakeCurrent(m_dc, m_context);
    // Kept by the system, as our scene is kept.
    m_list = glGenLists(1);
    glNewList(m_list, GL_COMPILE);
    glColor3f(1.0f, 1.0f, 1.0f);
    glBegin(GL_LINES);
    for (const graphics::LinePiece& line : lines) {
        glVertex3f(line.a.x, line.a.y, line.a.z);
        glVertex3f(line.b.x, line.b.y, line.b.z);
    }
    glEnd();
    glEndList();
}

OpenGlLines::~OpenGlLines() {
    if (m_context) {
        wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(m_context);
    }
    ReleaseDC(m_window, m_dc);
}

void OpenGlLines::draw(const HostMatrix3d& device) const {
    RECT client;
    GetClientRect(m_window, &client);
    glViewport(0, 0, client.right, client.bottom);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, client.right, 0, client.bottom, -1e5, 1e5);
    double columns[16];
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) columns[column * 4 + row] = device.entry[row][column];
    }
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixd(columns);
    glClear(GL_COLOR_BUFFER_BIT);
    glCallList(m_list);
    glFinish();
    SwapBuffers(m_dc);
}
