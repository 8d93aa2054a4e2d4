// The tab control of the report's dialog. Its pages are a preview of the report with a scroll bar, a drawing,
// and an empty one. It works the dialog's buttons too.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"
#include "src/preview/CGsPreviewCtrl.h"
#include "src/report/WexReportPreview.h"

class WexReportTab : public CTabCtrl, public TileControl {
    DECLARE_DYNAMIC(WexReportTab)

  public:
    WexReportPreview m_preview;
    CScrollBar m_scrollBar;
    CGsPreviewCtrl m_drawing;

    CWnd& wnd() override { return *this; }
    void discovered(WexDialog&, CCtrlInfo&) override { Initialize(); }
    bool turnPage(int step, HWND focus) override;
    void pressed(int id) override;

    // Makes the tabs and what is on their pages.
    void Initialize();

  protected:
    const MessageMap& messageMap() const override;

  private:
    // The lower edge of the tabs' captions.
    int captionsBottom() const;
    void layOut(int width, int height);
    void layOutButtons(int width, int height) const;
    void fitButtonTexts();
    void showPage();
    void scroll(UINT request, int thumb = 0);
    bool showsPreview() const;
    void saveAsPdf();

    void onSize(UINT type, int width, int height);
    LRESULT onSelectionChanged(NMHDR* header);
    void onVScroll(UINT request, UINT thumb);
    void onMouseWheel(UINT keys, int delta, POINT at);
    void onKeyDown(UINT key, UINT flags);
    void onDestroy();
    LRESULT onContextMenu(WPARAM w, LPARAM l);

    UniqueFont m_buttonFont;
    int m_wheel = 0;  // of the wheel's way, what has not moved the sheet yet
};
