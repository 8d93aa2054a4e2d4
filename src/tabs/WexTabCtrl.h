// A tab control, which stands under its siblings so that the controls of its pages show.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexTabCtrl : public CTabCtrl, public TileControl {
    DECLARE_DYNAMIC(WexTabCtrl)

  public:
    CWnd& wnd() override { return *this; }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
};
