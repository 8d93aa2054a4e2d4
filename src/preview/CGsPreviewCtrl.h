// A child window that shows one block of a drawing through the host's graphics system; a person zooms and
// pans it.
#pragma once

#include "src/platform/host/HostDatabase.h"
#include "src/platform/mfc/CToolTipCtrl.h"
#include "src/platform/mfc/Controls.h"
#include "src/preview/OrbitGadget.h"
#include "src/preview/OrbitMath.h"

class CGsPreviewCtrl : public CStatic {
    DECLARE_DYNAMIC(CGsPreviewCtrl)

  public:
    ~CGsPreviewCtrl() override;

    // Hidden at first. `rect` is in the parent's client pixels.
    bool Create(const RECT& rect, HWND parent, UINT id);

    // --- what is shown

    // Whether there is a view, so that something was framed.
    bool hasView() const { return m_view != nullptr; }
    // Shows the block "test" of the host's current drawing; makes it, with a small table, where there is
    // none. False without a drawing, and where the block couldn't be made.
    bool showSampleTable();
    // Shows that block, of the loaded drawing or else of the current one, in plan. False for an empty name.
    bool showBlock(const CString& name);
    // Sees the block against `direction` (kept: `up` isn't read). Unless `fitOff`, it is zoomed after it was
    // framed: in mode 1 to 1 / `zoom` of the size at which the window has a pixel for a unit, otherwise by
    // `zoom`.
    bool showBlockFull(const CString& name, double zoom, bool fitOff, int mode, const HostVector3d& up,
                       const HostVector3d& direction);
    // Shows an open record of a drawing, which is closed.
    bool showBlockRecord(HostBlockRecord* record);
    // Reads a drawing file and shows its model space. False, with an alert, where it isn't found or can't be
    // read.
    bool loadDrawing(const CString& fileName);
    // Reads it, and shows nothing yet.
    bool loadDrawingByPath(const CString& fileName);
    // Gives back all of the graphics system's objects; nothing is shown then.
    void clearGraphics();

    // --- questions

    // Whether the host's current drawing has that block.
    bool blockExists(const CString& name) const;
    // Each of the three sets a Lisp result: the names of the blocks (not of model and paper spaces), a
    // block's width and height, those of the loaded drawing. -1 without a drawing; nil without such a block.
    void listBlockNames() const;
    void getBlockSize(const CString& name);
    void getDatabaseSize() const;
    // What the host's active viewport shows; the target is its middle with `useCentre`. False without a
    // drawing.
    bool getActiveViewParameters(double& height, double& width, HostPoint3d& target, HostVector3d& direction,
                                 double& twist, bool useCentre) const;

    // --- looks

    // kept: the colour is that of the host's drawing area, whatever the index.
    void setBorderColor(int index);
    void setVisualStyleType(int type);
    void zoomView(double factor);
    // With an empty text only its activity changes.
    void setToolTipText(const CString& text, bool active);

    // 0: the mouse does nothing; 1: the gadget is shown; 2: a pan holds the mouse only until it first moves.
    void setMouseMode(int mode) { m_mouseMode = mode; }

    // The menu of views and styles, below the upper left corner; nothing where nothing is shown.
    void showMenu();

    bool PreTranslateMessage(MSG& message) override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    friend class PreviewProbe;

    HostDatabase* shownDatabase() const { return m_database ? m_database : hostWorkingDatabase(); }
    void deleteDatabase();
    void forgetDrawing();
    // The path where the host finds the file; empty, with an alert, where it doesn't.
    CString findDrawing(const CString& fileName);
    bool readDrawing(const CString& path, int sharing);

    bool isOfOwnDrawing(const HostBlockRecord& record) const;
    void setUpGraphics(HMODULE resources, bool withModel);
    void frameBlock(HostBlockRecord* record, double zoom, bool fitOff, int mode,
                    const HostVector3d& direction);
    // The block of m_blockName; false, with an empty name, where there is none.
    bool frameShown(double zoom, bool fitOff, int mode, const HostVector3d& direction);
    // Null where the drawing hasn't that block; the caller closes it.
    HostBlockRecord* openShown() const;
    HostExtents extentsOf(HostBlockRecord* record) const;
    void setViewOrRecover(const struct ViewFrame& frame);

    void onPaint();
    bool onEraseBackground(HDC dc);
    void onSize(UINT type, int width, int height);
    void onDestroy();
    void onSetFocus(CWnd* former);
    void onKillFocus(CWnd* next);
    LRESULT onHitTest(POINT) { return HTCLIENT; }
    LRESULT onColor(WPARAM w, LPARAM l);
    void paintView();
    void paintBackground(HDC dc) const;
    void paintBorder(HDC dc) const;
    // On a context of its own for null.
    void paintGadget(HDC dc) const;
    void drawFocusMark() const;
    bool holdsTheFocus() const { return ::GetFocus() == m_hWnd; }

    LRESULT onContextMenu(WPARAM w, LPARAM l);
    void see(const HostVector3d& direction);
    void setShownStyle(int type);
    LRESULT onButtonDown(WPARAM w, LPARAM l);
    void onLeftUp(UINT keys, POINT at);
    void onMiddleUp();
    void onLeftDoubleClick(UINT keys, POINT at);
    void onRightDoubleClick();
    void onRightUp();
    void onMove(UINT keys, POINT at);
    LRESULT onWheel(UINT keys, int delta, POINT at);
    void dragZoom(POINT at);
    void pan(POINT at);
    void orbit(POINT at);
    void redrawNow() const {
        RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    ViewPoint lastPoint() const { return {static_cast<int>(m_lastPoint.x), static_cast<int>(m_lastPoint.y)}; }

    bool m_leftDoubleClicked = false;
    bool m_rightDoubleClicked = false;
    // A drawing that was loaded; null while the host's current one is shown.
    HostDatabase* m_database = nullptr;
    // Empty while nothing is shown.
    CString m_blockName;
    CString m_fileName;
    bool m_borderOn = false;
    COLORREF m_borderColor = 0;
    double m_dragZoom = 1.0;
    // Null: the colour of dialogs.
    HBRUSH m_backgroundBrush = nullptr;
    COLORREF m_backgroundColor = 0;
    CToolTipCtrl m_toolTip;
    double m_wheelZoom = 1.0;
    HCURSOR m_cursors[3] = {};
    HostGsManager* m_gsManager = nullptr;
    HostGsKernel* m_kernel = nullptr;
    HostGsDevice* m_device = nullptr;
    HostGsView* m_view = nullptr;
    HostGsModel* m_model = nullptr;
    HostGsModel* m_extraModel = nullptr;
    OrbitGadget m_gadget;
    bool m_ownsModel = false;
    bool m_zoomDragging = false;
    bool m_panning = false;
    bool m_orbiting = false;
    POINT m_lastPoint{};
    int m_mouseMode = 2;
    bool m_showGadget = true;
    RECT m_focusRect{};
    // As the menu has chosen them, until another block is shown.
    CString m_chosenFor;
    HostVector3d m_direction{0, 0, 1};
    int m_style = HOST_STYLE_WIREFRAME_2D;
};
