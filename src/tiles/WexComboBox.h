// A combo box that tells Lisp which entry is selected.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexComboBox : public CComboBox, public TileControl {
    DECLARE_DYNAMIC(WexComboBox)

  public:
    CWnd& wnd() override { return *this; }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onSelectionChanged();
};
