// How the mouse moves the view of the preview.
#include "src/preview/CGsPreviewCtrl.h"

namespace {

constexpr double WHEEL_UP = 1.1;
constexpr double WHEEL_DOWN = 0.9;

ViewPoint viewPoint(POINT at) { return {static_cast<int>(at.x), static_cast<int>(at.y)}; }

}  // namespace

LRESULT CGsPreviewCtrl::onButtonDown(WPARAM, LPARAM l) {
    SetFocus();
    if (!m_view || m_blockName.empty()) return 0;
    m_panning = true;
    SetCapture(m_hWnd);
    m_lastPoint = {static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))};
    return 0;
}

void CGsPreviewCtrl::onLeftUp(UINT, POINT) {
    m_panning = false;
    ReleaseCapture();
}

void CGsPreviewCtrl::onMiddleUp() {
    SetFocus();
    if (!m_view || m_blockName.empty()) return;
    ReleaseCapture();
    m_panning = false;
    ShowCursor(TRUE);
    // kept: the mark goes until the next paint.
    drawFocusMark();
}

void CGsPreviewCtrl::onLeftDoubleClick(UINT, POINT) {
    SetFocus();
    Default();
    m_leftDoubleClicked = true;
}

void CGsPreviewCtrl::onRightDoubleClick() {
    SetFocus();
    Default();
    m_rightDoubleClicked = true;
}

void CGsPreviewCtrl::onRightUp() {
    SetFocus();
    m_rightDoubleClicked = false;
    if (m_view && !m_blockName.empty()) Default();
}

LRESULT CGsPreviewCtrl::onWheel(UINT, int delta, POINT) {
    if (m_mouseMode == 0 || !m_view) return TRUE;
    const double factor = delta < 0 ? WHEEL_DOWN : WHEEL_UP;
    m_view->zoom(factor);
    m_wheelZoom *= factor;
    Invalidate();
    if (holdsTheFocus()) drawFocusMark();
    return TRUE;
}

void CGsPreviewCtrl::onMove(UINT, POINT at) {
    // kept: the mouse is let go at the first move of a pan.
    if (m_mouseMode == 2) ReleaseCapture();
    if (m_mouseMode == 0) m_panning = m_orbiting = m_zoomDragging = false;
    // kept: each move raises the count of shown cursors, which nothing lowers.
    ShowCursor(TRUE);
    if (m_mouseMode == 0 || !m_view) return;
    if (m_zoomDragging) dragZoom(at);
    if (m_panning) pan(at);
    if (m_orbiting) orbit(at);
}

void CGsPreviewCtrl::dragZoom(POINT at) {
    const int height = GetClientRect().bottom;
    const double dy = static_cast<double>(at.y) - m_lastPoint.y;
    const bool moved = dy != 0.0 && height != 0;
    if (moved) {
        // kept: the last factor is applied once more before the new one.
        if (m_dragZoom != 1.0) m_view->zoom(1.0 - (1.0 - m_dragZoom));
        m_dragZoom = dragZoomFactor(dy, height);
        m_view->zoom(m_dragZoom);
    }
    m_lastPoint = at;
    if (moved) redrawNow();
}

void CGsPreviewCtrl::pan(POINT at) {
    const HostMatrix3d toView = m_view->viewingMatrix() * m_view->worldToDeviceMatrix().inverse();
    m_view->dolly(toView * panVector(lastPoint(), viewPoint(at)));
    redrawNow();
    m_lastPoint = at;
}

void CGsPreviewCtrl::orbit(POINT at) {
    const ArcballTurn turn = arcballTurn(m_view->getViewport(), lastPoint(), viewPoint(at));
    m_view->roll(turn.roll);
    m_view->orbit(0.0, turn.tilt);
    m_view->orbit(turn.swing, 0.0);
    m_view->orbit(0.0, -turn.tilt);
    m_view->roll(-turn.roll);
    redrawNow();
    m_lastPoint = at;
}
