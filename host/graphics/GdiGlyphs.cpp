#include "host/graphics/GdiGlyphs.h"

#include <cstddef>

namespace graphics {
namespace {

constexpr int FONT_HEIGHT = 512;
constexpr const wchar_t* FONT = L"Arial";
// Straight pieces to one curve: at the sizes of texts nobody sees the corners.
constexpr int CURVE_STEPS = 4;

float toFloat(const FIXED& number) {
    return static_cast<float>(number.value) + static_cast<float>(number.fract) / 65536.0f;
}

GlyphPoint toPoint(const POINTFX& p) { return {toFloat(p.x), toFloat(p.y)}; }

GlyphPoint middle(const GlyphPoint& a, const GlyphPoint& b) {
    return {(a.x + b.x) / 2.0f, (a.y + b.y) / 2.0f};
}

// A curve of the second degree from the last point.
void addCurve(std::vector<GlyphPoint>& outline, const GlyphPoint& control, const GlyphPoint& end) {
    const GlyphPoint start = outline.back();
    for (int step = 1; step <= CURVE_STEPS; ++step) {
        const float t = static_cast<float>(step) / CURVE_STEPS, u = 1.0f - t;
        outline.push_back({u * u * start.x + 2.0f * u * t * control.x + t * t * end.x,
                           u * u * start.y + 2.0f * u * t * control.y + t * t * end.y});
    }
}

// The points of one TTPOLYGONHEADER with its curves.
std::vector<GlyphPoint> outlineOf(const std::byte* data) {
    const auto* header = reinterpret_cast<const TTPOLYGONHEADER*>(data);
    std::vector<GlyphPoint> outline = {toPoint(header->pfxStart)};
    const std::byte* const end = data + header->cb;
    for (data += sizeof *header; data < end;) {
        const auto* curve = reinterpret_cast<const TTPOLYCURVE*>(data);
        for (int at = 0; at < curve->cpfx; ++at) {
            const GlyphPoint p = toPoint(curve->apfx[at]);
            if (curve->wType != TT_PRIM_QSPLINE) {
                outline.push_back(p);
            } else if (at + 1 < curve->cpfx) {
                // Between two control points lies a point of the curve, halfway; the last point is one
                // itself.
                const GlyphPoint next = toPoint(curve->apfx[at + 1]);
                const bool isLast = at + 2 == curve->cpfx;
                addCurve(outline, p, isLast ? next : middle(p, next));
                if (isLast) break;
            }
        }
        data += offsetof(TTPOLYCURVE, apfx) + static_cast<size_t>(curve->cpfx) * sizeof(POINTFX);
    }
    return outline;
}

}  // namespace

GdiGlyphs::GdiGlyphs()
    : m_dc(CreateCompatibleDC(nullptr)),
      m_font(CreateFontW(-FONT_HEIGHT, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_TT_ONLY_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS,
                         FONT)),
      m_former(SelectObject(m_dc, m_font)) {
    float top = 0.0f;
    for (const auto& outline : make(u'H').outlines) {
        for (const GlyphPoint& p : outline) top = std::max(top, p.y);
    }
    if (top > 0.0f) m_capital = top;
}

GdiGlyphs::~GdiGlyphs() {
    SelectObject(m_dc, m_former);
    DeleteObject(m_font);
    DeleteDC(m_dc);
}

const Glyph& GdiGlyphs::glyph(char16_t letter) {
    const auto known = m_glyphs.find(letter);
    return known != m_glyphs.end() ? known->second : m_glyphs.emplace(letter, make(letter)).first->second;
}

Glyph GdiGlyphs::make(char16_t letter) const {
    static constexpr MAT2 identity = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    GLYPHMETRICS metrics{};
    Glyph glyph;
    const DWORD bytes = GetGlyphOutlineW(m_dc, letter, GGO_NATIVE, &metrics, 0, nullptr, &identity);
    if (bytes == GDI_ERROR) {
        glyph.advance = 0.5f;
        return glyph;
    }
    glyph.advance = static_cast<float>(metrics.gmCellIncX / m_capital);
    std::vector<std::byte> data(bytes);
    if (!bytes ||
        GetGlyphOutlineW(m_dc, letter, GGO_NATIVE, &metrics, bytes, data.data(), &identity) == GDI_ERROR) {
        return glyph;
    }
    for (size_t at = 0; at + sizeof(TTPOLYGONHEADER) <= data.size();) {
        glyph.outlines.push_back(outlineOf(data.data() + at));
        at += reinterpret_cast<const TTPOLYGONHEADER*>(data.data() + at)->cb;
    }
    for (auto& outline : glyph.outlines) {
        for (GlyphPoint& p : outline) {
            p = {static_cast<float>(p.x / m_capital), static_cast<float>(p.y / m_capital)};
        }
    }
    return glyph;
}

GlyphSource& drawingGlyphs() {
    static GdiGlyphs& glyphs = *new GdiGlyphs;
    return glyphs;
}

}  // namespace graphics
