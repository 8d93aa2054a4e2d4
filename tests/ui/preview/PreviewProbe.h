#pragma once

#include "src/preview/CGsPreviewCtrl.h"

// What only tests look at and set.
class PreviewProbe {
  public:
    explicit PreviewProbe(CGsPreviewCtrl& preview) : m_preview(preview) {}
    bool isPanning() const { return m_preview.m_panning; }
    double dragZoom() const { return m_preview.m_dragZoom; }
    const CString& block() const { return m_preview.m_blockName; }
    void orbitFrom(POINT at) const { m_preview.m_orbiting = true, m_preview.m_lastPoint = at; }
    void dragZoomFrom(POINT at) const { m_preview.m_zoomDragging = true, m_preview.m_lastPoint = at; }
    void see(const HostVector3d& direction) const { m_preview.see(direction); }

    HostDatabase* database() const { return m_preview.m_database; }
    CToolTipCtrl& tip() const { return m_preview.m_toolTip; }
    void setBackground(HBRUSH brush, COLORREF color) const {
        m_preview.m_backgroundBrush = brush, m_preview.m_backgroundColor = color;
    }

  private:
    CGsPreviewCtrl& m_preview;
};
