// A group box in a window of its own, so that what stands in it isn't covered by it.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexFrame : public CWnd, public TileControl {
    DECLARE_DYNAMIC(WexFrame)

  public:
    CWnd& wnd() override { return *this; }
    void attach(WexDialog& dialog, HWND control) override;
    // Puts the frame in the place of the group box of that id.
    void replace(const CWnd& parent, int id);

  protected:
    const MessageMap& messageMap() const override;

  private:
    void createGroupBox(const CString& caption, HFONT font);
    void onSize(UINT type, int width, int height);
    LRESULT onEraseBackground(HDC dc);
    LRESULT onColorStatic(HDC dc, CWnd* control);
    LRESULT onSetText(WPARAM w, LPARAM l);

    CButton m_groupBox;
};
