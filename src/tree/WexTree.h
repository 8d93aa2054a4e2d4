// A tree.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexTree : public CTreeCtrl, public TileControl {
    DECLARE_DYNAMIC(WexTree)

  public:
    CWnd& wnd() override { return *this; }
};
