// A label.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexStatic : public CStatic, public TileControl {
    DECLARE_DYNAMIC(WexStatic)

  public:
    CWnd& wnd() override { return *this; }
};
