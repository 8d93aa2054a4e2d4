#include "src/preview/CGsPreviewCtrl.h"

#include "src/platform/mfc/Drawing.h"
#include "src/preview/GraphicsError.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CGsPreviewCtrl, CStatic)

namespace {

constexpr COLORREF GADGET_COLOR = RGB(0, 255, 0);

class SolidPen {
  public:
    SolidPen(HDC dc, COLORREF color) : m_pen(CreatePen(PS_SOLID, 1, color)), m_selected(dc, m_pen.get()) {}

  private:
    drawing::Unique<HPEN, drawing::DeleteGdiObject> m_pen;
    SelectedObject m_selected;
};

// Two arcs, from the left end to the right one and back.
void drawCircle(HDC dc, int left, int top, int right, int bottom, int middle) {
    Arc(dc, left, top, right, bottom, left, middle, right, middle);
    Arc(dc, left, top, right, bottom, right, middle, left, middle);
}

RECT focusRectOf(int width, int height) { return {2, 2, width - 2, height - 2}; }

}  // namespace

const MessageMap& CGsPreviewCtrl::messageMap() const {
    static const MessageMap map(CStatic::messageMap(),
                                {
                                    on<WM_PAINT, &CGsPreviewCtrl::onPaint>(),
                                    on<WM_ERASEBKGND, &CGsPreviewCtrl::onEraseBackground>(),
                                    on<WM_SIZE, &CGsPreviewCtrl::onSize>(),
                                    on<WM_DESTROY, &CGsPreviewCtrl::onDestroy>(),
                                    on<WM_SETFOCUS, &CGsPreviewCtrl::onSetFocus>(),
                                    on<WM_KILLFOCUS, &CGsPreviewCtrl::onKillFocus>(),
                                    on<WM_NCHITTEST, &CGsPreviewCtrl::onHitTest>(),
                                    onRaw<WM_CTLCOLORMSGBOX, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_CTLCOLOREDIT, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_CTLCOLORLISTBOX, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_CTLCOLORBTN, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_CTLCOLORDLG, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_CTLCOLORSCROLLBAR, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_CTLCOLORSTATIC, &CGsPreviewCtrl::onColor>(),
                                    onRaw<WM_LBUTTONDOWN, &CGsPreviewCtrl::onButtonDown>(),
                                    onRaw<WM_MBUTTONDOWN, &CGsPreviewCtrl::onButtonDown>(),
                                    on<WM_LBUTTONUP, &CGsPreviewCtrl::onLeftUp>(),
                                    on<WM_MBUTTONUP, &CGsPreviewCtrl::onMiddleUp>(),
                                    on<WM_LBUTTONDBLCLK, &CGsPreviewCtrl::onLeftDoubleClick>(),
                                    on<WM_RBUTTONDBLCLK, &CGsPreviewCtrl::onRightDoubleClick>(),
                                    on<WM_RBUTTONUP, &CGsPreviewCtrl::onRightUp>(),
                                    on<WM_MOUSEMOVE, &CGsPreviewCtrl::onMove>(),
                                    onRaw<WM_CONTEXTMENU, &CGsPreviewCtrl::onContextMenu>(),
                                    on<WM_MOUSEWHEEL, &CGsPreviewCtrl::onWheel>(),
                                });
    return map;
}

CGsPreviewCtrl::~CGsPreviewCtrl() { clearGraphics(); }

bool CGsPreviewCtrl::Create(const RECT& rect, HWND parent, UINT id) {
    return CreateEx(0, L"Static", L"", WS_CHILD | WS_CLIPSIBLINGS, rect, parent, id);
}

bool CGsPreviewCtrl::PreTranslateMessage(MSG& message) {
    if (!m_toolTip.isLive()) {
        m_toolTip.Create(m_hWnd);
        m_toolTip.Activate(false);
    }
    m_toolTip.RelayEvent(message);
    return CStatic::PreTranslateMessage(message);
}

// --- painting

void CGsPreviewCtrl::onPaint() {
    // The view brings all of itself to the window; so all that stands over it is painted too.
    InvalidateRect(m_hWnd, nullptr, FALSE);
    const PaintDC dc(m_hWnd);
    if (!m_blockName.empty() || m_database) {
        paintView();
        if (m_orbiting || m_showGadget) paintGadget(dc);
        paintBorder(dc);
        if (holdsTheFocus() && !m_orbiting && !m_panning && !m_zoomDragging) DrawFocusRect(dc, &m_focusRect);
    }
    // Also after a view that failed in this paint.
    if (m_blockName.empty()) {
        paintBackground(dc);
        paintBorder(dc);
        if (holdsTheFocus() && !m_orbiting && !m_panning) DrawFocusRect(dc, &m_focusRect);
    }
}

void CGsPreviewCtrl::paintView() {
    try {
        if (!m_view) throw GraphicsError();
        demand(m_view->invalidate());
        demand(m_view->update());
    } catch (const GraphicsError&) {
        clearGraphics();
    }
}

// The view covers all of the window; what is erased before would flicker.
bool CGsPreviewCtrl::onEraseBackground(HDC) { return !m_blockName.empty() || Default(); }

void CGsPreviewCtrl::paintBackground(HDC dc) const {
    const RECT client = GetClientRect();
    FillRect(dc, &client, m_backgroundBrush ? m_backgroundBrush : GetSysColorBrush(COLOR_3DFACE));
}

void CGsPreviewCtrl::paintBorder(HDC dc) const {
    if (!m_borderOn || m_orbiting || m_panning) return;
    RECT rect = GetClientRect();
    InflateRect(&rect, -1, -1);
    const int w = rect.right - rect.left, h = rect.bottom - rect.top;
    const SolidPen pen(dc, m_borderColor);
    MoveToEx(dc, 1, 1, nullptr);
    LineTo(dc, w, 1);
    LineTo(dc, w, h);
    LineTo(dc, 1, h);
    LineTo(dc, 1, 1);
}

void CGsPreviewCtrl::paintGadget(HDC given) const {
    if (m_panning || m_mouseMode != 1) return;
    if (!given) {
        const ClientDC own(m_hWnd);
        return paintGadget(own);
    }
    const RECT client = GetClientRect();
    const OrbitGadgetPlaces places =
        orbitGadgetPlaces({client.left, client.top, client.right, client.bottom});
    const SolidPen pen(given, GADGET_COLOR);
    const HostGsRect& circle = places.circle;
    MoveToEx(given, circle.left, circle.top, nullptr);
    drawCircle(given, circle.left, circle.top, circle.right, circle.bottom, places.centre.y);
    for (const auto [x, y] : places.handles) {
        constexpr int R = ORBIT_HANDLE_RADIUS;
        MoveToEx(given, x - R, y - R, nullptr);
        drawCircle(given, x - R, y - R, x + R, y + R, y);
    }
}

// Drawn a second time it is gone.
void CGsPreviewCtrl::drawFocusMark() const {
    const ClientDC dc(m_hWnd);
    DrawFocusRect(dc, &m_focusRect);
}

void CGsPreviewCtrl::onSize(UINT, int width, int height) {
    Default();
    m_focusRect = focusRectOf(width, height);
    if (m_device) m_device->onSize(width, height);
    if (m_blockName.empty()) {
        const ClientDC dc(m_hWnd);
        return paintBackground(dc);
    }
    if (!m_view) return;
    m_view->invalidate();
    m_view->update();
    if (m_showGadget) paintGadget(nullptr);
}

void CGsPreviewCtrl::onSetFocus(CWnd*) {
    const RECT client = GetClientRect();
    m_focusRect = focusRectOf(client.right, client.bottom);
    drawFocusMark();
}

void CGsPreviewCtrl::onKillFocus(CWnd*) {
    Default();
    drawFocusMark();
}

// For what kind of child whatever.
LRESULT CGsPreviewCtrl::onColor(WPARAM w, LPARAM) {
    if (!m_backgroundBrush) return Default();
    const HDC dc = reinterpret_cast<HDC>(w);
    SetBkColor(dc, m_backgroundColor);
    SelectObject(dc, m_backgroundBrush);
    return reinterpret_cast<LRESULT>(m_backgroundBrush);
}

void CGsPreviewCtrl::onDestroy() {
    if (m_database) {
        clearGraphics();
        m_blockName.clear();
        deleteDatabase();
    }
    Default();
}

// --- looks

void CGsPreviewCtrl::setVisualStyleType(int type) {
    if (m_view) m_view->setVisualStyle(HostVisualStyle(type));
}

void CGsPreviewCtrl::zoomView(double factor) {
    if (m_view) m_view->zoom(factor);
    Invalidate();
    if (holdsTheFocus()) drawFocusMark();
}

void CGsPreviewCtrl::setToolTipText(const CString& text, bool active) {
    if (!text.empty()) {
        if (!m_toolTip.isLive()) m_toolTip.Create(m_hWnd);
        m_toolTip.Activate(false);
        if (m_toolTip.GetToolCount() == 0) m_toolTip.AddTool(m_hWnd, GetClientRect());
        m_toolTip.UpdateTipText(m_hWnd, text);
    }
    if (m_toolTip.isLive()) m_toolTip.Activate(active);
}
