#include "host/documents/DrawingWindow.h"

#include <windowsx.h>

#include <cmath>
#include <utility>

#include "host/documents/Documents.h"
#include "host/documents/EmptyDrawing.h"
#include "host/services/DrawingColors.h"

namespace {

constexpr wchar_t CLASS_NAME[] = L"WexHostDrawing";
constexpr double WHEEL_FACTOR = 1.2;
// A drag across the window's shorter side turns by so much, in radians.
constexpr double TURN_OF_SIDE = 3.14159265;
// Room around what is shown whole.
constexpr double MARGIN = 1.08;
// How far what has no size is taken to reach.
constexpr double LEAST_SIZE = 1e-6;

HWND makeWindow(HWND parent, WNDPROC procedure, void* object) {
    WNDCLASSEXW drawing = {sizeof drawing};
    drawing.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    drawing.lpfnWndProc = procedure;
    drawing.hInstance = GetModuleHandleW(nullptr);
    drawing.hCursor = LoadCursorW(nullptr, IDC_CROSS);
    drawing.lpszClassName = CLASS_NAME;
    RegisterClassExW(&drawing);
    return CreateWindowExW(0, CLASS_NAME, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent, nullptr,
                           drawing.hInstance, object);
}

// From the platform's order of parts to ours.
constexpr uint32_t rgbOf(COLORREF color) {
    return static_cast<uint32_t>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}

// An opened block in the form that a view takes.
class ShownBlock final : public HostDrawable {
  public:
    explicit ShownBlock(cad::ObjectId id) : m_id(id) {}
    HostObjectId id() const override { return m_id; }

  private:
    cad::ObjectId m_id;
};

}  // namespace

DrawingWindow::DrawingWindow(HWND parent, int dpi)
    : m_window(makeWindow(parent, &procedure, this)),
      m_dpi(dpi),
      m_pixels(m_window),
      m_view(&Database::find) {
    s_current = this;
    m_view.setDevice(&m_pixels);
    m_view.setBackground(rgbOf(DRAWING_BACKGROUND));
    setDpi(dpi);
}

void DrawingWindow::setDpi(int dpi) {
    m_dpi = dpi;
    m_view.setScale(static_cast<float>(dpi) / USER_DEFAULT_SCREEN_DPI);
    drawingChanged();
}

const cad::Block* DrawingWindow::shownBlock() {
    HostDocument* document = documents().current();
    if (!document) return nullptr;
    const cad::Block* asked = m_asked ? document->database.drawing().block(m_asked) : nullptr;
    return asked ? asked : &document->database.drawing().modelSpace();
}

void DrawingWindow::show(const cad::Block& block, const HostVector3d& direction) {
    m_asked = block.id();
    setStyle(direction.x == 0.0 && direction.y == 0.0 ? HOST_STYLE_WIREFRAME_2D : HOST_STYLE_SHADED);
    m_shown = block.id();
    m_view.eraseAll();
    ShownBlock drawable(block.id());
    m_view.add(&drawable, nullptr);
    fit(block, direction);
    m_wasEmpty = block.extents().isEmpty();
    drawingChanged();
}

bool DrawingWindow::isEmpty() {
    const cad::Block* block = shownBlock();
    return !block || block->extents().isEmpty();
}

void DrawingWindow::fit() { see(direction()); }

void DrawingWindow::see(const HostVector3d& direction) {
    if (isEmpty()) return;
    const cad::Block& block = *shownBlock();
    const int style = m_style;
    // What wasn't painted yet isn't in the view either.
    if (m_shown != block.id() || m_wasEmpty) show(block, direction);
    fit(block, direction);
    setStyle(style);
}

void DrawingWindow::setStyle(int style) {
    m_style = style;
    m_view.setVisualStyle(HostVisualStyle(style));
    drawingChanged();
}

void DrawingWindow::fit(const cad::Block& block, const HostVector3d& direction) {
    HostExtents extents = block.extents();
    if (extents.isEmpty()) return;
    const HostVector3d back = direction.normal();
    const HostVector3d side = back.perpVector().normal();
    const HostPoint3d middle = HostLineSeg3d{extents.min, extents.max}.midPoint();
    // Upright where there is an upright: Z stays up from the side, Y in plan.
    const HostVector3d up = back.crossProduct(side);
    const double distance = std::max(1.0, (extents.max - extents.min).length());
    extents.transformBy(HostMatrix3d::coordSystem(middle, side, up, back).inverse());
    const double width = std::max(extents.max.x - extents.min.x, LEAST_SIZE) * MARGIN;
    const double height = std::max(extents.max.y - extents.min.y, LEAST_SIZE) * MARGIN;
    m_view.setView(middle + back * distance, middle, up, width, height, 0);
}

void DrawingWindow::paint() {
    PAINTSTRUCT paint;
    // The view brings all of itself to the window, and the axes stand over it.
    InvalidateRect(m_window, nullptr, FALSE);
    const HDC dc = BeginPaint(m_window, &paint);
    RECT area;
    GetClientRect(m_window, &area);
    m_pixels.resize(area.right, area.bottom);
    const bool empty = isEmpty();
    if (empty) {
        paintEmptyDrawing(dc, area, m_dpi);
    } else {
        const cad::Block* block = shownBlock();
        // Another drawing, or the first things in one, are shown whole; what comes later leaves the view as
        // it is.
        if (m_shown != block->id() || m_wasEmpty)
            show(*block, m_shown == block->id() ? m_view.camera().back() : HostVector3d{0, 0, 1});
        m_view.invalidate();
        m_view.update();
        paintAxes(dc, area, m_dpi, m_view.viewingMatrix());
    }
    m_wasEmpty = empty;
    EndPaint(m_window, &paint);
    tellFilled(empty);
}

void DrawingWindow::tellFilled(bool empty) {
    if (std::exchange(m_toldEmpty, empty) == empty) return;
    SendMessageW(GetParent(m_window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(m_window), DRAWING_FILLED),
                 reinterpret_cast<LPARAM>(m_window));
}

void DrawingWindow::tellViewport(cad::Drawing& drawing) {
    const graphics::Camera& camera = m_view.camera();
    const HostVector3d upright = camera.back().crossProduct(camera.back().perpVector().normal());
    cad::ViewportState& state = drawing.viewport();
    state.width = camera.width();
    state.height = camera.height();
    state.target = camera.target();
    state.direction = camera.back();
    state.twist = std::atan2(camera.up().dotProduct(camera.back().crossProduct(upright)),
                             camera.up().dotProduct(upright));
    drawing.variables()[u"VIEWCTR"] = camera.target();
}

void DrawingWindow::beginDrag(Drag drag, POINT at) {
    m_drag = drag;
    m_last = at;
    SetCapture(m_window);
}

void DrawingWindow::pan(double x, double y) {
    const HostMatrix3d toView = m_view.viewingMatrix() * m_view.worldToDeviceMatrix().inverse();
    m_view.dolly(toView * HostVector3d{-x, y, 0.0});
}

void DrawingWindow::rightButtonUp(POINT at) {
    ReleaseCapture();
    if (at.x != m_pressed.x || at.y != m_pressed.y) return;
    ClientToScreen(m_window, &at);
    SendMessageW(GetParent(m_window), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_window),
                 MAKELPARAM(at.x, at.y));
}

void DrawingWindow::dragTo(POINT at) {
    const double x = at.x - m_last.x, y = at.y - m_last.y;
    m_last = at;
    if (x == 0.0 && y == 0.0) return;
    if (m_drag == Drag::pan) {
        pan(x, y);
    } else {
        const double side = std::max(1, std::min(m_pixels.width(), m_pixels.height()));
        orbit(-x * TURN_OF_SIDE / side, y * TURN_OF_SIDE / side);
    }
    RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void DrawingWindow::orbit(double x, double y) {
    // What leaves the plan is seen with its faces.
    setStyle(HOST_STYLE_SHADED);
    m_view.orbit(x, y);
    drawingChanged();
}

void DrawingWindow::zoom(double factor) {
    m_view.zoom(factor);
    drawingChanged();
}

void DrawingWindow::move(double x, double y) {
    pan(x, -y);
    drawingChanged();
}

void DrawingWindow::zoomAt(POINT at, double factor) {
    // What is under the pointer stays there.
    const double x = at.x - m_pixels.width() / 2.0, y = at.y - m_pixels.height() / 2.0;
    pan(-x, -y);
    m_view.zoom(factor);
    pan(x, y);
    drawingChanged();
}

bool DrawingWindow::handle(UINT message, WPARAM w, LPARAM l) {
    const POINT at = {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
    switch (message) {
        case WM_PAINT:
            paint();
            return true;
        case WM_ERASEBKGND:
            return true;
        case WM_LBUTTONDOWN:
        case WM_MBUTTONDOWN:
            beginDrag(w & MK_SHIFT ? Drag::orbit : Drag::pan, at);
            return true;
        case WM_RBUTTONDOWN:
            m_pressed = at;
            beginDrag(Drag::orbit, at);
            return true;
        case WM_MOUSEMOVE:
            if (m_drag != Drag::none) dragTo(at);
            return true;
        case WM_LBUTTONUP:
        case WM_MBUTTONUP:
            ReleaseCapture();
            return true;
        case WM_RBUTTONUP:
            rightButtonUp(at);
            return true;
        case WM_CAPTURECHANGED:
            m_drag = Drag::none;
            return true;
        case WM_MBUTTONDBLCLK:
            fit();
            return true;
        case WM_MOUSEWHEEL: {
            POINT inside = at;
            ScreenToClient(m_window, &inside);
            zoomAt(inside, GET_WHEEL_DELTA_WPARAM(w) < 0 ? 1.0 / WHEEL_FACTOR : WHEEL_FACTOR);
            return true;
        }
        default:
            return false;
    }
}

LRESULT CALLBACK DrawingWindow::procedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    if (message == WM_NCCREATE) {
        auto* object = reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
    }
    auto* drawing = reinterpret_cast<DrawingWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    // While it is being made the object has no window yet.
    if (!drawing || !drawing->m_window) return DefWindowProcW(window, message, w, l);
    return drawing->handle(message, w, l) ? 0 : DefWindowProcW(window, message, w, l);
}
