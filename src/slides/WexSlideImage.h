// An image tile: a button on which Lisp draws, and which shows slides and pictures.
//
// Drawing goes straight to the window. A snapshot of what stands there, taken when Lisp ends its drawing, is
// what a later paint shows; without one it shows the picture, the slide, or black.
//
// kept: it has no run-time class of its own. wex_dimx_tile and wex_dimy_tile measure plain buttons only, and
// so take it for one.
#pragma once

#include "src/dialog/ButtonState.h"
#include "src/dialog/TileControl.h"
#include "src/pictures/Picture.h"
#include "src/platform/mfc/Controls.h"
#include "src/platform/mfc/Drawing.h"
#include "src/slides/CSlideLibObject.h"

// Tells the author that a file hasn't the slide that was to be shown.
void warnNoSlide(const CString& file, const CString& member);

class WexSlideImage : public CButton, public TileControl {
  public:
    WexSlideImage();

    CWnd& wnd() override { return *this; }
    CString value() override { return buttonValue(*this); }
    void attach(WexDialog& dialog, HWND control) override;
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
    // Also shows the slide that waits in the record.
    void applyRecord(CCtrlInfo& tile) override;

    // Drawing at once; coordinates are the client area's pixels, colors 0x00BBGGRR.

    // Black, and no slide. A snapshot and a picture stay, and come back at the next paint.
    void reset();
    // Both ends count.
    void drawVector(POINT from, POINT to, COLORREF color);
    void fillRect(const RECT& rect, COLORREF color);
    // Black, and on it the member of a slide library, stretched over the rectangle; over the whole client
    // area where that has no width or height. Black alone, and false, where there is no such slide.
    bool ShowSlide(const CString& file, const CString& member, const PixelRect& rect);
    // The same for a slide at hand: over the whole client area, in its proportions. The tile doesn't keep it.
    void DrawSlideObject(const CSlideObject& slide);
    // What stands in the client area becomes what a paint shows, unless the dialog isn't visible.
    void takeSnapshot();

    // Shows the picture in a file. One that can't be read leaves the tile without a picture, and gives false.
    bool LoadPicture(const CString& path, bool fit);

  protected:
    const MessageMap& messageMap() const override;
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override;

  private:
    class Drawing;

    void DrawItem(DRAWITEMSTRUCT* item);
    void onPaint();
    bool onEraseBackground(HDC dc);
    void onSetFocus(CWnd* former);
    void onKillFocus(CWnd* next);
    void onLButtonDown(UINT keys, POINT at);
    void onEnable(bool enabled);
    LRESULT onColor(HDC dc, CWnd* self);
    LRESULT onColorOfChild(HDC dc);
    void ignore() {}
    LRESULT onGetDlgCode();
    LRESULT onShownState(WPARAM w, LPARAM l);

    void redraw() const;
    void clear(HDC dc) const;
    void clearSlides();
    void paintSnapshot(HDC dc) const;
    void paintPicture(HDC dc) const;
    bool isParentVisible() const { return IsWindowVisible(::GetParent(m_hWnd)); }
    // Draws the focus mark, or takes it off.
    void turnMark(HDC dc);
    // Puts the focus mark where it belongs.
    void refreshMark();

    CString m_slideFile;  // path of the library
    CString m_slideName;  // the member
    PixelRect m_slideRect;
    bool m_hasFocus = false;
    // Whether the focus mark stands on the screen.
    bool m_isMarked = false;
    CCtrlInfo* m_tile = nullptr;
    ComPtr<IPicture> m_picture;
    bool m_fit = true;
    CSlideObject m_slide;  // stays empty
    CSlideLibObject m_library;
    UniqueBrush m_brush;  // black
    COLORREF m_textColor;
    COLORREF m_backColor = 0;
    UniqueBitmap m_snapshot;
};
