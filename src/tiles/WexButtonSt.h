// A button that its caption turned into an image button.
#pragma once

#include "src/buttons/CXPStyleButtonST.h"
#include "src/dialog/Pressable.h"
#include "src/dialog/TileControl.h"

// It never ends the dialog by itself, whatever its id, and its clicks are not guarded.
class WexButtonSt : public CXPStyleButtonST, public TileControl, public Pressable {
    DECLARE_DYNAMIC(WexButtonSt)

  public:
    CWnd& wnd() override { return *this; }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
    void click() override { press(); }
    void press() override;

  protected:
    const MessageMap& messageMap() const override;
};
