// The background of a tab control's page, as the platform's control draws it, for what stands on the page.
#pragma once

#include "src/platform/mfc/CWnd.h"
#include "src/platform/mfc/Drawing.h"

class PageLook {
  public:
    // The brush of the page of `tab`, whose middle is at that point in client pixels. Owned by this object,
    // until the next forget(). Null while the control is being asked.
    HBRUSH brushOf(const CWnd& tab, POINT middle);
    // The control has another look from now on.
    void forget() { m_brush.reset(); }

  private:
    UniqueBrush m_brush;
    bool m_asking = false;
};
