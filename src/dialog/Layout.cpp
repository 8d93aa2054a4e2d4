// The layout of a dialog that is resized: anchored controls follow its edges, and labels fit their height.
#include "src/dialog/WexDialog.h"
#include "src/platform/mfc/Drawing.h"

namespace {

// The places that controls left and took.
class MovedArea {
  public:
    void add(const PixelRect& rect) {
        const UniqueRegion part(CreateRectRgn(rect.left, rect.top, rect.right, rect.bottom));
        CombineRgn(m_region.get(), m_region.get(), part.get(), RGN_OR);
    }
    HRGN region() const { return m_region.get(); }

  private:
    UniqueRegion m_region{CreateRectRgn(0, 0, 0, 0)};
};

// Draws the dialog and its controls anew, in `where` or everywhere. The platform moves a control with its
// picture and takes it for painted, although the dialog's background or another control's picture may be in
// its place: so everything is invalidated, children too.
void redraw(HWND dialog, HRGN where = nullptr) {
    RedrawWindow(dialog, nullptr, where, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace

void WexDialog::computeAnchors(const CWnd& control, CCtrlInfo& tile) {
    if (tile.m_resizeCode == -1) return;
    m_resizable = true;
    tile.m_anchorOffsets =
        anchorOffsets(tile.m_resizeCode, pixelRect(control.rectInParent()), m_initialClientRect.right,
                      m_initialClientRect.bottom, tile.m_heightShares);
}

// A dialog whose size is its own starts where it was, and not smaller than it may be.
void WexDialog::placeAtStart() {
    if (!m_resizable) return;
    const StartPlacement start = startPlacement(restorePlacement(), m_limits);
    PixelRect moved = start.rect;
    moved.bottom = moved.top + start.movedHeight;
    // To move a window to where it stands costs as much as to move it elsewhere.
    if (moved != pixelRect(GetWindowRect()))
        ::MoveWindow(m_hWnd, moved.left, moved.top, moved.width(), moved.height(), TRUE);
    m_lastClientRect = GetClientRect();
}

void WexDialog::layoutControls(int width, int height) {
    const RECT client = GetClientRect();
    if (EqualRect(&client, &m_lastClientRect)) return;
    // Where one control is gone, nothing is laid out.
    for (size_t at = 0; at < m_tiles.size(); ++at)
        if (const CWnd* control = m_tiles.at(at)->m_control; control && !control->isLive()) return;
    HDWP batch = BeginDeferWindowPos(static_cast<int>(m_tiles.size()));
    MovedArea moved;
    for (size_t at = 0; at < m_tiles.size(); ++at) {
        const CCtrlInfo& tile = *m_tiles.at(at);
        if (!tile.m_control || tile.m_resizeCode == -1) continue;
        const PixelRect former = pixelRect(tile.m_control->rectInParent());
        const PixelRect rect = anchored(former, tile.m_anchorOffsets, width, height);
        if (rect == former) continue;
        moved.add(former);
        moved.add(rect);
        batch = DeferWindowPos(batch, tile.m_control->m_hWnd, nullptr, rect.left, rect.top, rect.width(),
                               rect.height(), SWP_NOZORDER | SWP_NOREDRAW);
    }
    m_lastClientRect = client;
    EndDeferWindowPos(batch);
    if (fitMoved())
        redraw(m_hWnd);
    else
        redraw(m_hWnd, moved.region());
}

void WexDialog::redrawMoved() {
    fitMoved();
    redraw(m_hWnd);
}

bool WexDialog::fitMoved() {
    bool fitted = false;
    for (size_t at = 0; at < m_tiles.size(); ++at) {
        CWnd* control = m_tiles.at(at)->m_control;
        if (!control) continue;
        if (!control->isLive()) return fitted;
        auto* wrapper = dynamic_cast<TileControl*>(control);
        if (!wrapper || !wrapper->laidOut()) continue;
        RedrawWindow(control->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        fitted = true;
    }
    return fitted;
}
