// kept: it has no run-time class of its own, so that the functions that ask an image tile for its size know
// it as a plain button.
//
// A button that shows a slide or a picture.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexSlideImage : public CButton, public TileControl {
  public:
    CWnd& wnd() override { return *this; }
    void attach(WexDialog& dialog, HWND control) override;
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;

  private:
    CCtrlInfo* m_tile = nullptr;
};
