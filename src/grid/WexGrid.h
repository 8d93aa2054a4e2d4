// A grid.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexGrid : public CWnd, public TileControl {
    DECLARE_DYNAMIC(WexGrid)

  public:
    CWnd& wnd() override { return *this; }
    bool laidOut() override { return true; }
};
