// A surface that writes down what is drawn on it. Its letters are as wide as told and its lines as high.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "src/report/ReportDrawing.h"

struct Drawn {
    enum Kind { font, text, move, line, pixel } kind;
    PixelRect rect;      // of a text; for a point its left and top
    std::wstring words;  // or the font's name
    int height = 0;

    bool operator==(const Drawn&) const = default;
};

class Record : public ReportSurface {
  public:
    Record(int dpi, int lineHeight, int letterWidth = 0)
        : dpiAcross(dpi), m_dpi(dpi), m_lineHeight(lineHeight), m_letterWidth(letterWidth) {}

    int dpiX() const override { return dpiAcross; }
    int dpiY() const override { return m_dpi; }
    void useFont(ReportFont font) override {
        drawn.push_back({Drawn::font, {}, font == ReportFont::bold ? L"bold" : L"normal"});
    }
    int drawText(const std::wstring& text, const PixelRect& rect) override {
        const int height = linesOf(text, rect.width()) * m_lineHeight;
        drawn.push_back({Drawn::text, rect, text, height});
        return height;
    }
    void moveTo(int x, int y) override { drawn.push_back({Drawn::move, {x, y}, {}}); }
    void lineTo(int x, int y) override { drawn.push_back({Drawn::line, {x, y}, {}}); }
    void setPixel(int x, int y) override { drawn.push_back({Drawn::pixel, {x, y}, {}}); }

    std::vector<Drawn> drawn;
    int dpiAcross;

  private:
    // Each line takes at least one letter.
    int linesOf(const std::wstring& text, int width) const {
        const int fits = m_letterWidth ? std::max(1, width / m_letterWidth) : 1 << 20;
        int lines = 0, letters = 0;
        for (const wchar_t letter : text) {
            if (letters == 0) ++lines;
            letters = letter == L'\n' || letters + 1 == fits ? 0 : letters + 1;
        }
        return lines;
    }

    int m_dpi, m_lineHeight, m_letterWidth;
};
