// The outlines of the platform's font for drawings, each made at its first use.
#pragma once

#include <windows.h>

#include <map>

#include "host/graphics/GlyphSource.h"

namespace graphics {

class GdiGlyphs final : public GlyphSource {
  public:
    GdiGlyphs();
    ~GdiGlyphs() override;
    GdiGlyphs(const GdiGlyphs&) = delete;
    GdiGlyphs& operator=(const GdiGlyphs&) = delete;

    const Glyph& glyph(char16_t letter) override;

  private:
    Glyph make(char16_t letter) const;

    HDC m_dc;
    HFONT m_font;
    HGDIOBJ m_former;
    // Units of the outlines to one height of a capital letter.
    double m_capital = 1.0;
    std::map<char16_t, Glyph> m_glyphs;
};

// That of the process.
GlyphSource& drawingGlyphs();

}  // namespace graphics
