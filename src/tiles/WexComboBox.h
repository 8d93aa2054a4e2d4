// A combo box.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexComboBox : public CComboBox, public TileControl {
    DECLARE_DYNAMIC(WexComboBox)

  public:
    CWnd& wnd() override { return *this; }
};
