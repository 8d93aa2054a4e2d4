// A list box that tells Lisp what is selected, and whose double click presses OK.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexListBox : public CListBox, public TileControl {
    DECLARE_DYNAMIC(WexListBox)

  public:
    CWnd& wnd() override { return *this; }
    CString value() override { return std::to_wstring(SendMessage(LB_GETCURSEL)); }
    void applyRecord(CCtrlInfo& tile) override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onSelectionChanged();
    void onDoubleClick(UINT keys, POINT at);
    void pressOk();
    bool hasSelection() const;

    bool m_dblClickEnabled = true;
};
