// The layout of a dialog that is resized: anchored controls follow its edges, and labels fit their height.
#include "src/dialog/WexDialog.h"

void WexDialog::computeAnchors(const CWnd& control, CCtrlInfo& tile) {
    if (tile.m_resizeCode == -1) return;
    m_resizable = true;
    tile.m_anchorOffsets = anchorOffsets(tile.m_resizeCode, pixelRect(control.rectInParent()),
                                         m_initialClientRect.right, m_initialClientRect.bottom);
}

// A dialog whose size is its own starts where it was, and not smaller than it may be.
void WexDialog::placeAtStart() {
    if (!m_resizable) return;
    const StartPlacement start = startPlacement(restorePlacement(), m_limits);
    ::MoveWindow(m_hWnd, start.rect.left, start.rect.top, start.rect.width(), start.movedHeight, TRUE);
    m_lastClientRect = GetClientRect();
}

void WexDialog::layoutControls(int width, int height) {
    const RECT client = GetClientRect();
    if (EqualRect(&client, &m_lastClientRect)) return;
    // Where one control is gone, nothing is laid out.
    for (size_t at = 0; at < m_tiles.size(); ++at)
        if (const CWnd* control = m_tiles.at(at)->m_control; control && !control->isLive()) return;
    HDWP batch = BeginDeferWindowPos(static_cast<int>(m_tiles.size()));
    for (size_t at = 0; at < m_tiles.size(); ++at) {
        const CCtrlInfo& tile = *m_tiles.at(at);
        if (!tile.m_control) continue;
        PixelRect rect = pixelRect(tile.m_control->rectInParent());
        if (tile.m_resizeCode != -1) rect = anchored(rect, tile.m_anchorOffsets, width, height);
        batch = DeferWindowPos(batch, tile.m_control->m_hWnd, nullptr, rect.left, rect.top, rect.width(),
                               rect.height(), SWP_NOZORDER);
    }
    m_lastClientRect = client;
    EndDeferWindowPos(batch);
    redrawMoved();
}

void WexDialog::redrawMoved() {
    fitMoved();
    // A control that was moved with its picture counts as painted: it would be erased with the dialog's
    // background, or keep the picture of one that stood there before.
    RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void WexDialog::fitMoved() {
    for (size_t at = 0; at < m_tiles.size(); ++at) {
        CWnd* control = m_tiles.at(at)->m_control;
        if (!control) continue;
        if (!control->isLive()) return;
        auto* wrapper = dynamic_cast<TileControl*>(control);
        if (wrapper && wrapper->laidOut())
            RedrawWindow(control->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
}
