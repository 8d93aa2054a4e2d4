#include "host/runner/TextMeasure.h"

#include <iterator>

namespace {

constexpr int UNITS_ACROSS = 4;
constexpr int UNITS_DOWN = 8;
constexpr int POINTS_AN_INCH = 72;
// A line may lose the lowest pixel of its descent.
constexpr int HEIGHT_SLACK = 1;

HFONT createFont(HDC dc, const DialogTemplate& dialog, int percent) {
    const int dotsAnInch = MulDiv(GetDeviceCaps(dc, LOGPIXELSY), percent, 100);
    const int height = -MulDiv(dialog.fontPoints, dotsAnInch, POINTS_AN_INCH);
    return CreateFontW(height, 0, 0, 0, dialog.fontWeight, dialog.fontItalic, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY, FF_DONTCARE,
                       dialog.fontName.empty() ? L"System" : dialog.fontName.c_str());
}

}  // namespace

TextMeasure::TextMeasure(const DialogTemplate& dialog, int percent)
    : m_dc(CreateCompatibleDC(nullptr)),
      m_font(createFont(m_dc, dialog, percent)),
      m_former(SelectObject(m_dc, m_font)) {
    constexpr wchar_t letters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int count = static_cast<int>(std::size(letters)) - 1;
    SIZE size{};
    GetTextExtentPoint32W(m_dc, letters, count, &size);
    // Rounded to the nearest pixel, as the platform does it.
    m_base = {(size.cx / (count / 2) + 1) / 2, size.cy};
}

TextMeasure::~TextMeasure() {
    SelectObject(m_dc, m_former);
    DeleteObject(m_font);
    DeleteDC(m_dc);
}

bool TextMeasure::fits(const std::wstring& text, const TextRoom& room) const {
    const int width = MulDiv(room.width, m_base.cx, UNITS_ACROSS);
    const int height = MulDiv(room.height, m_base.cy, UNITS_DOWN);
    RECT needed{0, 0, width, 0};
    const UINT format = DT_CALCRECT | DT_EXPANDTABS | (room.wraps ? DT_WORDBREAK : DT_SINGLELINE) |
                        (room.hasMnemonic ? 0 : DT_NOPREFIX);
    DrawTextW(m_dc, text.c_str(), static_cast<int>(text.size()), &needed, format);
    return needed.right <= width && needed.bottom <= height + HEIGHT_SLACK;
}
