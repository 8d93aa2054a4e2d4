// A template made into a window that nobody sees, to look at what came out.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

#include "host/runner/LayoutFindings.h"
#include "src/platform/base/DialogTemplate.h"

class OpenedDialog {
  public:
    // At a scale of so many percent of the display's: the font is that much larger, and with it the dialog
    // units, as on a display with that many more dots per inch. The widths of scroll bars, check marks and
    // borders stay the display's.
    OpenedDialog(HMODULE module, std::span<const uint8_t> bytes, const DialogTemplate& dialog, int percent);
    ~OpenedDialog();
    OpenedDialog(const OpenedDialog&) = delete;
    OpenedDialog& operator=(const OpenedDialog&) = delete;

    // False where the platform couldn't make it.
    bool isOpen() const { return m_window != nullptr; }
    // Controls that overlap or lie outside.
    std::vector<std::wstring> misplaced() const;
    // The controls look from then on as on a display without a theme.
    void removeTheme();
    // Texts that stand out too little. Empty labels and edit boxes get a text for it; controls that are
    // disabled don't count, but labels do.
    std::vector<std::wstring> paleTexts() const;

  private:
    HWND m_window = nullptr;
    // Of the client area, in pixels; the window itself is never larger than the screen.
    SIZE m_size{};
};
