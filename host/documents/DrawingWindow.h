// Shows the current drawing in the main frame: a drag of the left or middle button pans, one of the right
// button or with Shift orbits, the wheel zooms about the pointer, a double click of the middle button shows
// all. A click of the right button asks the main frame for a menu (WM_CONTEXTMENU); that there is something
// to see from now on, or nothing, is told it by WM_COMMAND with DRAWING_FILLED.
#pragma once

#include <windows.h>

#include "host/database/Drawing.h"
#include "host/graphics/GsView.h"

constexpr WORD DRAWING_FILLED = 1;

class DrawingWindow {
  public:
    // A child of `parent`, without a place yet. `dpi`: dots per inch of the display.
    DrawingWindow(HWND parent, int dpi);
    DrawingWindow(const DrawingWindow&) = delete;
    DrawingWindow& operator=(const DrawingWindow&) = delete;

    // That of the main frame, or null.
    static DrawingWindow* current() { return s_current; }

    HWND window() const { return m_window; }
    graphics::GsView& view() { return m_view; }
    void setDpi(int dpi);
    // Shows that block of the current drawing whole, seen against `direction`.
    void show(const cad::Block& block, const HostVector3d& direction);
    // Whether there is anything to see; the next three do nothing where there isn't.
    bool isEmpty();
    // All of it, from where it is seen now, and seen against `direction`.
    void fit();
    void see(const HostVector3d& direction);
    // HOST_STYLE_…
    void setStyle(int style);
    int style() const { return m_style; }
    // From what is seen towards who looks at it; of length 1.
    HostVector3d direction() { return m_view.camera().back(); }
    // By angles in radians towards the right and upward; by a factor; by pixels to the right and upward.
    void orbit(double x, double y);
    void zoom(double factor);
    void move(double x, double y);
    // Paints anew when messages are next handled.
    void drawingChanged() { InvalidateRect(m_window, nullptr, FALSE); }
    // Tells the drawing what is seen now: its viewport, and the variable "VIEWCTR".
    void tellViewport(cad::Drawing& drawing);

  private:
    enum class Drag { none, pan, orbit };

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept;
    // Nothing where the message isn't dealt with.
    bool handle(UINT message, WPARAM w, LPARAM l);
    void paint();
    void tellFilled(bool empty);
    // The block that is to be seen; null where no document is open.
    const cad::Block* shownBlock();
    void fit(const cad::Block& block, const HostVector3d& direction);
    void rightButtonUp(POINT at);
    void beginDrag(Drag drag, POINT at);
    void dragTo(POINT at);
    void zoomAt(POINT at, double factor);
    // Moves what is seen by pixels, y downward.
    void pan(double x, double y);

    static inline DrawingWindow* s_current = nullptr;

    HWND m_window = nullptr;
    int m_dpi;
    graphics::PixelWindow m_pixels;
    graphics::GsView m_view;
    // What was asked for, and what the view has; 0 for the model space and for nothing.
    cad::ObjectId m_asked = 0;
    cad::ObjectId m_shown = 0;
    bool m_wasEmpty = true;
    bool m_toldEmpty = true;
    int m_style = HOST_STYLE_WIREFRAME_2D;
    Drag m_drag = Drag::none;
    POINT m_last{};
    POINT m_pressed{};  // where the right button went down; where it came up it is a click
};
