// A scroll bar that keeps its own position and tells Lisp of it. Discovery makes none: a template's scroll
// bar stays a plain control.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexScrollBar : public CScrollBar, public TileControl {
    DECLARE_DYNAMIC(WexScrollBar)

  public:
    CWnd& wnd() override { return *this; }

    int m_pageStep = 10;
    int m_lineStep = 1;
    int m_position = 0;

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onScroll(UINT code, UINT position);
};
