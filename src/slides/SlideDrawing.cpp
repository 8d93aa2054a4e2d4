#include "src/slides/SlideDrawing.h"

#include <algorithm>
#include <new>
#include <vector>

#include "src/shell/HostNumber.h"
#include "src/slides/SlideColors.h"
#include "src/slides/SlideMapping.h"

namespace {

// Three ways from the slide's coordinates to those of the surface: `absolute` for a point, `moved` for an
// offset from a point that is the surface's already.

struct SlideUnits {
    SlidePoint absolute(int32_t x, int32_t y) const { return {x, y}; }
    SlidePoint moved(SlidePoint from, int32_t dx, int32_t dy) const {
        return {wrapped(int64_t{from.x} + dx), wrapped(int64_t{from.y} + dy)};
    }
};

struct FlippedUnits {
    int32_t height;

    SlidePoint absolute(int32_t x, int32_t y) const { return {x, wrapped(int64_t{height} - y)}; }
    SlidePoint moved(SlidePoint from, int32_t dx, int32_t dy) const {
        return {wrapped(int64_t{from.x} + dx), wrapped(int64_t{from.y} - dy)};
    }
};

struct ScaledUnits {
    double scaleX, scaleY;
    int32_t left, bottom;

    SlidePoint absolute(int32_t x, int32_t y) const { return moved({left, bottom}, x, y); }
    // kept: each offset is truncated by itself, so the errors of a chain of them add up.
    SlidePoint moved(SlidePoint from, int32_t dx, int32_t dy) const {
        return {wrapped(int64_t{from.x} + truncated(dx * scaleX)),
                wrapped(int64_t{from.y} - truncated(dy * scaleY))};
    }
};

ScaledUnits unitsOf(SlideSize extents, const PixelRect& rect, bool keepAspect) {
    const auto differ = [](int32_t a, int32_t b) { return wrapped(int64_t{a} - b); };
    ScaledUnits units{static_cast<double>(differ(rect.right, rect.left)) / extents.cx,
                      static_cast<double>(differ(rect.bottom, rect.top)) / extents.cy, rect.left,
                      rect.bottom};
    if (keepAspect) {
        const double scale = std::min(units.scaleX, units.scaleY);
        const int32_t freeX = differ(differ(rect.right, truncated(extents.cx * scale)), rect.left);
        const int32_t freeY = differ(differ(rect.bottom, truncated(extents.cy * scale)), rect.top);
        units = {scale, scale, wrapped(int64_t{rect.left} + freeX / 2), differ(rect.bottom, freeY / 2)};
    }
    return units;
}

// The pen, or the brush, that is selected in place of the surface's own. Puts the surface's own back at the
// end.
class Replacement {
  public:
    using Select = SlideTool (SlideSurface::*)(SlideTool);

    Replacement(SlideSurface& surface, Select select) : m_surface(surface), m_select(select) {}
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement() {
        if (m_made) {
            (m_surface.*m_select)(m_own);
            m_surface.Destroy(m_made);
        }
    }

    // Takes ownership of `made`.
    void use(SlideTool made) {
        const SlideTool displaced = (m_surface.*m_select)(made);
        if (m_made)
            m_surface.Destroy(m_made);
        else
            m_own = displaced;
        m_made = made;
    }

  private:
    SlideSurface& m_surface;
    Select m_select;
    SlideTool m_own = nullptr;
    SlideTool m_made = nullptr;
};

template <class Units>
class Drawing {
  public:
    Drawing(SlideSurface& surface, const Units& units, bool monochrome)
        : m_surface(surface), m_units(units), m_monochrome(monochrome) {}

    void draw(SlideRecordReader records) {
        for (SlideRecord record; records.next(record);) {
            switch (record.kind) {
                case SlideRecord::Kind::Vector:
                    segment(m_units.absolute(record.x1, record.y1), m_units.absolute(record.x2, record.y2));
                    break;
                case SlideRecord::Kind::OffsetVector:
                    segment(m_units.moved(m_last, record.x1, record.y1),
                            m_units.moved(m_last, record.x2, record.y2));
                    break;
                case SlideRecord::Kind::Endpoint:
                    m_last = m_units.moved(m_last, record.x1, record.y1);
                    m_surface.LineTo(m_last);
                    break;
                case SlideRecord::Kind::Fill:
                    fill(records, record);
                    break;
                case SlideRecord::Kind::Color:
                    color(record.color);
                    break;
            }
        }
    }

  private:
    // From b to a, so that the pen rests on a. A line within one pixel is made to reach the next, since a
    // line leaves its last pixel out.
    void segment(SlidePoint a, SlidePoint b) {
        m_surface.MoveTo(m_surface.AreApart(a, b) ? b : besides(a, b));
        m_surface.LineTo(a);
        m_last = a;
    }

    // b, or the next pixel where b is in the pixel of a. Without a device, units count as pixels.
    SlidePoint besides(SlidePoint a, SlidePoint b) {
        SlidePoint pixels[] = {a, b};
        const bool hasDevice = m_surface.LPtoDP(pixels);
        if (pixels[0] != pixels[1]) return b;
        const std::span second(&pixels[1], 1);
        second[0].x = wrapped(int64_t{second[0].x} + 1);
        if (hasDevice) m_surface.DPtoLP(second);
        return second[0];
    }

    void fill(const SlideRecordReader& records, const SlideRecord& record) {
        if (record.vertexCount == 0) return;
        m_corners.clear();
        for (size_t at = 0; at < record.vertexCount; ++at) {
            const uint8_t* group = record.vertices + at * SlideRecordReader::VERTEX_BYTES;
            m_corners.push_back(m_units.absolute(records.vertexX(group), records.vertexY(group)));
        }
        m_surface.SetPolyFillMode(SLIDE_FILL_ALTERNATE);
        m_surface.Polygon(m_corners);
    }

    void color(uint8_t index) {
        if (m_monochrome) {
            const SlideTool pen = m_surface.CreatePen(m_surface.GetTextColor());
            if (!pen) throw std::bad_alloc();
            m_pen.use(pen);
            return;
        }
        // Never so, since no entry has a top byte and the complement of one always has.
        if (g_slideColors[index] == ~g_slideColors[0]) index = 0;
        const SlideTool pen = m_surface.CreatePen(g_slideColors[index]);
        const SlideTool brush = m_surface.CreateBrush(g_slideColors[index]);
        if (!pen || !brush) {
            for (const SlideTool made : {pen, brush})
                if (made) m_surface.Destroy(made);
            throw std::bad_alloc();
        }
        m_pen.use(pen);
        m_brush.use(brush);
    }

    SlideSurface& m_surface;
    const Units m_units;
    const bool m_monochrome;
    SlidePoint m_last;
    std::vector<SlidePoint> m_corners;
    Replacement m_brush{m_surface, &SlideSurface::SelectBrush};
    Replacement m_pen{m_surface, &SlideSurface::SelectPen};
};

}  // namespace

void drawSlide(SlideRecordReader records, SlideSurface& surface, bool monochrome) {
    Drawing(surface, SlideUnits{}, monochrome).draw(records);
}

void drawSlideFlipped(SlideRecordReader records, SlideSurface& surface, int32_t height, bool monochrome) {
    Drawing(surface, FlippedUnits{height}, monochrome).draw(records);
}

void drawSlideInRect(SlideRecordReader records, SlideSurface& surface, SlideSize extents,
                     const PixelRect& rect, bool monochrome, bool keepAspect) {
    Drawing(surface, unitsOf(extents, rect, keepAspect), monochrome).draw(records);
}
