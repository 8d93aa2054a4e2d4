// A drawing that is turned, frame by frame: our lines beside those of GDI and OpenGL, and shaded faces.
//
//     graphics_bench [REPETITIONS]
#include <windows.h>

#include <random>
#include <string>

#include "bench/dialog/Measure.h"
#include "bench/graphics/OpenGlLines.h"
#include "host/database/DrawingFile.h"
#include "host/graphics/GdiGlyphs.h"
#include "host/graphics/PixelWindow.h"
#include "host/graphics/Renderer.h"

namespace {

constexpr int WIDTH = 960, HEIGHT = 540;
constexpr double SIZE = 1000.0;
constexpr double STEP = 0.02;

class Frame {
  public:
    Frame()
        : m_window(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, WIDTH, HEIGHT, nullptr,
                                   nullptr, nullptr, nullptr)) {}
    ~Frame() { DestroyWindow(m_window); }
    HWND window() const { return m_window; }

  private:
    HWND m_window;
};

// Short lines all over a cube, as wires are.
cad::Drawing linesDrawing(int count) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> place(0.0, SIZE), reach(-10.0, 10.0);
    cad::Drawing drawing;
    for (int at = 0; at < count; ++at) {
        const HostPoint3d start{place(random), place(random), place(random)};
        cad::Entity line;
        line.geometry = cad::Line{start, start + HostVector3d{reach(random), reach(random), reach(random)}};
        drawing.modelSpace().add(std::move(line));
    }
    return drawing;
}

// A hilly ground.
cad::Drawing facesDrawing(int side) {
    cad::FaceMesh mesh;
    const double step = SIZE / side;
    for (int y = 0; y <= side; ++y) {
        for (int x = 0; x <= side; ++x) {
            mesh.vertices.push_back({x * step, y * step, 60.0 * std::sin(x * 0.11) * std::cos(y * 0.07)});
        }
    }
    const auto at = [&](int x, int y) { return static_cast<uint32_t>(y * (side + 1) + x); };
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            mesh.faces.push_back({at(x, y), at(x + 1, y), at(x + 1, y + 1), at(x, y + 1)});
    }
    cad::Drawing drawing;
    cad::Entity entity;
    entity.geometry = std::move(mesh);
    drawing.modelSpace().add(std::move(entity));
    return drawing;
}

graphics::Camera cameraOf(const cad::Drawing& drawing) {
    const HostExtents& extents = drawing.modelSpace().extents();
    const HostPoint3d middle = HostLineSeg3d{extents.min, extents.max}.midPoint();
    graphics::Camera camera;
    camera.setView(middle + HostVector3d{0, 0, SIZE}, middle, {0, 1, 0}, SIZE * 1.7, SIZE * 1.7);
    camera.orbit(0.4, -0.8);
    return camera;
}

class Turning {
  public:
    Turning(const cad::Drawing& drawing, graphics::Style style)
        : m_pixels(m_frame.window()),
          m_scene(sceneOf(drawing, drawing.modelSpace(), graphics::drawingGlyphs())),
          m_camera(cameraOf(drawing)) {
        m_look.style = style;
        m_pixels.resize(WIDTH, HEIGHT);
    }

    const graphics::Scene& scene() const { return m_scene; }
    void turn() { m_camera.orbit(STEP, STEP / 3.0); }
    void draw() {
        const graphics::Scene* scenes[] = {&m_scene};
        render(scenes, m_camera, m_look, graphics::drawingGlyphs(), m_pixels.raster());
        m_pixels.show();
        GdiFlush();
    }
    HostMatrix3d device() const {
        HostMatrix3d move;
        move.entry[0][3] = m_scene.origin.x;
        move.entry[1][3] = m_scene.origin.y;
        move.entry[2][3] = m_scene.origin.z;
        return m_camera.worldToDevice({0, 0, WIDTH, HEIGHT}) * move;
    }
    // One call for each line, into a picture in memory that is then shown.
    void drawByGdi() {
        const HDC window = GetDC(m_frame.window());
        const HDC dc = CreateCompatibleDC(window);
        const HBITMAP bitmap = CreateCompatibleBitmap(window, WIDTH, HEIGHT);
        const HGDIOBJ former = SelectObject(dc, bitmap);
        SelectObject(dc, GetStockObject(WHITE_PEN));
        const HostMatrix3d device = this->device();
        const auto pixel = [&](const graphics::ScenePoint& p) {
            const HostPoint3d at = device * HostPoint3d{p.x, p.y, p.z};
            return POINT{static_cast<LONG>(at.x), static_cast<LONG>(HEIGHT - at.y)};
        };
        for (const graphics::LinePiece& line : m_scene.lines[0].pieces) {
            const POINT a = pixel(line.a), b = pixel(line.b);
            MoveToEx(dc, a.x, a.y, nullptr);
            LineTo(dc, b.x, b.y);
        }
        BitBlt(window, 0, 0, WIDTH, HEIGHT, dc, 0, 0, SRCCOPY);
        GdiFlush();
        SelectObject(dc, former);
        DeleteObject(bitmap);
        DeleteDC(dc);
        ReleaseDC(m_frame.window(), window);
    }

  private:
    Frame m_frame;
    graphics::PixelWindow m_pixels;
    graphics::Scene m_scene;
    graphics::Camera m_camera;
    graphics::Look m_look;
};

void measureLines(int count, int repetitions) {
    const cad::Drawing drawing = linesDrawing(count);
    Turning turning(drawing, graphics::Style::wireframe);
    const Frame frame;
    const OpenGlLines openGl(frame.window(), turning.scene().lines[0].pieces);
    Versus gdi, gl;
    for (int at = 0; at < repetitions; ++at) {
        turning.turn();
        const double ours = timeOf([&] { turning.draw(); });
        gdi.ours.add(ours);
        gl.ours.add(ours);
        gdi.bare.add(timeOf([&] { turning.drawByGdi(); }));
        if (openGl.works()) gl.bare.add(timeOf([&] { openGl.draw(turning.device()); }));
    }
    const std::string name = "graphics.orbit_" + std::to_string(count) + "_lines";
    gdi.print((name + "_vs_gdi").c_str());
    if (openGl.works()) gl.print((name + "_vs_opengl").c_str());
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const int repetitions = count > 1 ? _wtoi(arguments[1]) : 15;
    measureLines(10'000, repetitions);
    measureLines(1'000'000, std::max(3, repetitions / 5));

    // 100,352 triangles.
    Turning ground(facesDrawing(224), graphics::Style::shaded);
    Times faces;
    for (int at = 0; at < repetitions; ++at) {
        ground.turn();
        faces.add(timeOf([&] { ground.draw(); }));
    }
    faces.print("graphics.orbit_100000_triangles");

    const cad::Drawing large = linesDrawing(100'000);
    Times framing, opening;
    const std::string text = cad::drawingText(large);
    for (int at = 0; at < std::max(3, repetitions / 3); ++at) {
        opening.add(timeOf([&] { cad::drawingOf(text); }));
        cad::Drawing fresh = cad::drawingOf(text);
        framing.add(timeOf([&] { fresh.modelSpace().extents(); }));
    }
    opening.print("graphics.open_100000_entities");
    framing.print("graphics.extents_100000_entities");
    return 0;
}
