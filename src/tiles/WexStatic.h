// A label, whose height follows its text when the dialog is laid out.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexStatic : public CStatic, public TileControl {
    DECLARE_DYNAMIC(WexStatic)

  public:
    CWnd& wnd() override { return *this; }
    bool laidOut() override { return fitHeight(); }

  protected:
    const MessageMap& messageMap() const override;

  private:
    // Makes the label as high as its wrapped text. True where that changed it.
    bool fitHeight();
    void onSizing(UINT edge, RECT* proposed);
};
