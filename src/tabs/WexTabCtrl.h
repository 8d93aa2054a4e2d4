// A tab control whose pages are no windows of their own: the controls of all pages stand side by side in the
// dialog, over the tab control, which shows those of the selected page and hides the others.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"
#include "src/tabs/PageLook.h"
#include "src/tabs/PageMembers.h"

class WexTabCtrl : public CTabCtrl, public TileControl {
    DECLARE_DYNAMIC(WexTabCtrl)

  public:
    PageMembers m_pages;
    CStatic m_background;  // blank, under what stands on the page

    CWnd& wnd() override { return *this; }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
    // Makes the background, and puts the control under all of its siblings.
    void setUp();

    // Adds a tab with a page of those controls. May run Lisp, as the focus leaves a control that is hidden.
    // Raises CInvalidArgException where the control has tabs that weren't added here.
    void addPage(const CString& caption, const std::vector<CWnd*>& members);

    bool turnPage(int step, HWND focus) override;
    HBRUSH brushUnder(HDC dc, const CWnd& other) override;
    void paintUnder(HDC dc, const CWnd& dialog) override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    int selected() const { return static_cast<int>(SendMessage(TCM_GETCURSEL)); }
    int count() const { return static_cast<int>(SendMessage(TCM_GETITEMCOUNT)); }
    // The part of the control below the captions, in that window's client pixels.
    RECT pageAreaIn(const CWnd& window) const;
    HBRUSH pageBrush();
    bool carries(HWND window) const;

    void placeBackground();
    void showPage();
    bool releaseFocus(const PageChange& change);
    void redraw(const PageChange& change) const;
    void focusFirst(const std::vector<CWnd*>& members) const;

    void onSelectionChanged(NMHDR* header);
    void onSize(UINT type, int width, int height);
    void onLookChanged();
    LRESULT onColorStatic(HDC dc, CWnd* control);

    PageLook m_look;
};

// The value is the number of a tab. kept: the controls of the page that was shown stay.
void setTabValue(CWnd& tab, const CString& value, bool byKey);
