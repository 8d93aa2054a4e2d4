// A child window for one block of a drawing. It can't show any yet, and says so.
#pragma once

#include "src/platform/mfc/Controls.h"

class CGsPreviewCtrl : public CStatic {
    DECLARE_DYNAMIC(CGsPreviewCtrl)

  public:
    // Hidden at first. `rect` is in the parent's client pixels.
    bool Create(const RECT& rect, HWND parent, UINT id);

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onPaint();
};
