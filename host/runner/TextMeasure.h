// Measures text in a dialog's font, in the dialog's own units.
#pragma once

#include <windows.h>

#include <string>

#include "host/runner/DialogFindings.h"

class TextMeasure {
  public:
    // In the dialog's font, at a scale of so many percent.
    explicit TextMeasure(const DialogTemplate& dialog, int percent = 100);
    ~TextMeasure();
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    bool fits(const std::wstring& text, const TextRoom& room) const;

  private:
    HDC m_dc;
    HFONT m_font;
    HGDIOBJ m_former;
    // The size of the font's mean character in pixels: 4 by 8 dialog units.
    SIZE m_base{};
};
