// A list box.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexListBox : public CListBox, public TileControl {
    DECLARE_DYNAMIC(WexListBox)

  public:
    CWnd& wnd() override { return *this; }
};
