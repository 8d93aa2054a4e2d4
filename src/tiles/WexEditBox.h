// An edit box that tells Lisp its text when the focus leaves it.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexEditBox : public CEdit, public TileControl {
    DECLARE_DYNAMIC(WexEditBox)

  public:
    CWnd& wnd() override { return *this; }

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onSetFocus();
    void endOfEdit();

    // From the gain of the focus to the first end of editing.
    bool m_focusPending = false;
};
