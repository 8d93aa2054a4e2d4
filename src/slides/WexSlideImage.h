// A button that shows a slide or a picture.
//
// kept: it has no run-time class of its own. wex_dimx_tile and wex_dimy_tile measure plain buttons only, and
// so take it for one.
#pragma once

#include "src/dialog/ButtonState.h"
#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexSlideImage : public CButton, public TileControl {
  public:
    CWnd& wnd() override { return *this; }
    CString value() override { return buttonValue(*this); }
    void attach(WexDialog& dialog, HWND control) override;
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;

  private:
    CCtrlInfo* m_tile = nullptr;
};
