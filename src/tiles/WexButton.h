// A button of any kind but an image button: push button, check box, radio button, plain group box.
#pragma once

#include "src/dialog/ButtonState.h"
#include "src/dialog/Pressable.h"
#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexButton : public CButton, public TileControl, public Pressable {
    DECLARE_DYNAMIC(WexButton)

  public:
    CWnd& wnd() override { return *this; }
    CString value() override { return buttonValue(*this); }
    void click() override;
    void press() override;

  protected:
    const MessageMap& messageMap() const override;
};
