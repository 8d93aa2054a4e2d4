// A list control, which selects whole rows and shows them selected without the focus.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexListCtrl : public CListCtrl, public TileControl {
    DECLARE_DYNAMIC(WexListCtrl)

  public:
    CWnd& wnd() override { return *this; }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
};
