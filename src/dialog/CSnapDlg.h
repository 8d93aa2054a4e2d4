// The base of all of the product's dialogs: a dialog that remembers its size and place, keeps its size within
// limits, and has a size grip when it can be resized.
#pragma once

#include "src/dialog/Placement.h"
#include "src/platform/mfc/CDialog.h"

PixelRect pixelRect(const RECT& rect);
RECT windowRect(const PixelRect& rect);

class CSnapDlg : public CDialog {
    DECLARE_DYNAMIC(CSnapDlg)

  public:
    CSnapDlg(UINT templateId, CWnd* parent);

    // The section of the profile under which size and position are stored.
    CString m_registrySection;
    // Whether the dialog has a grip and its size is restored.
    bool m_resizable = false;
    SizeLimits m_limits;

  protected:
    const MessageMap& messageMap() const override;
    bool OnInitDialog() override;
    void runEnded() override;

    // The window's rectangle at the start, from the profile and the template.
    PixelRect restorePlacement() const;
    void savePlacement() const;

    void onSize(UINT type, int width, int height);
    void onPaint();
    void onDestroy();

  private:
    void onSizing(UINT edge, RECT* proposed);
    LRESULT onNcHitTest(POINT at);
    void drawGrip();

    SIZE m_gripSize{};
    RECT m_gripRect{};  // in client pixels
};
