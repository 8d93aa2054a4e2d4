// The tool bar of the main frame: buttons for the commands that are used most.
#pragma once

#include <memory>
#include <vector>

#include "host/frame/FrameCommands.h"
#include "src/platform/buttons/CXPStyleButtonST.h"

class FrameTools : public CWnd {
  public:
    // A child of `parent`, which gets WM_COMMAND for what is pressed. `dpi`: dots per inch of the display.
    FrameTools(HWND parent, UINT id, int dpi);
    ~FrameTools() override;

    void setDpi(int dpi);
    // In device pixels.
    static int heightAt(int dpi);
    void enable(UINT command, bool enabled);
    // All tools of the drawing.
    void enableViews(bool enabled);

  protected:
    bool OnCommand(UINT id, UINT notification) override;

  private:
    int scaled(int pixels) const { return MulDiv(pixels, m_dpi, USER_DEFAULT_SCREEN_DPI); }

    CThemeHelperST m_themeHelper;
    std::vector<std::unique_ptr<CXPStyleButtonST>> m_buttons;
    int m_dpi = USER_DEFAULT_SCREEN_DPI;
};
