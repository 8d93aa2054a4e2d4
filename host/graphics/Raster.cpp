#include "host/graphics/Raster.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace graphics {
namespace {

// Fixed point with 16 bits behind the point: exact enough over any screen.
constexpr int FRACTION_BITS = 16;
constexpr int64_t ONE = int64_t{1} << FRACTION_BITS;
// The sharpest outlines that are filled have this many rows within a pixel.
constexpr int SUB_ROWS = 4;

int64_t fixed(float value) { return static_cast<int64_t>(value * static_cast<float>(ONE)); }

bool isFinite(const PixelPoint& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

PixelPoint between(const PixelPoint& a, const PixelPoint& b, float t) {
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t, a.z + (b.z - a.z) * t};
}

// The lengths in pixels of strokes and gaps in turn.
std::span<const float> dashesOf(cad::LinePattern pattern) {
    static constexpr float DASHED[] = {10, 5};
    static constexpr float DOTTED[] = {2, 4};
    static constexpr float DASH_DOT[] = {12, 4, 2, 4};
    switch (pattern) {
        case cad::LinePattern::dashed:
            return DASHED;
        case cad::LinePattern::dotted:
            return DOTTED;
        case cad::LinePattern::dashDot:
            return DASH_DOT;
        default:
            return {};
    }
}

}  // namespace

void Raster::attach(uint32_t* pixels, int width, int height) {
    m_pixels = pixels;
    m_width = width;
    m_height = height;
    m_depth.clear();
}

void Raster::clear(uint32_t color) { std::fill_n(m_pixels, static_cast<size_t>(m_width) * m_height, color); }

void Raster::useDepth() {
    m_depth.assign(static_cast<size_t>(m_width) * m_height, -std::numeric_limits<float>::infinity());
}

// By Liang and Barsky, to the area in which rounding stays inside the picture; exact for lines that begin far
// outside.
bool Raster::clip(PixelPoint& a, PixelPoint& b) const {
    const float right = static_cast<float>(m_width) - 0.01f, bottom = static_cast<float>(m_height) - 0.01f;
    const double x = a.x, y = a.y, z = a.z;
    const double dx = b.x - x, dy = b.y - y, dz = b.z - z;
    double from = 0.0, to = 1.0;
    const auto keep = [&](double p, double q) {
        if (p == 0.0) return q >= 0.0;
        const double t = q / p;
        if (p < 0.0) {
            from = std::max(from, t);
        } else {
            to = std::min(to, t);
        }
        return from <= to;
    };
    if (!keep(-dx, x) || !keep(dx, right - x) || !keep(-dy, y) || !keep(dy, bottom - y)) return false;
    const auto at = [&](double t) {
        return PixelPoint{std::clamp(static_cast<float>(x + dx * t), 0.0f, right),
                          std::clamp(static_cast<float>(y + dy * t), 0.0f, bottom),
                          static_cast<float>(z + dz * t)};
    };
    a = at(from);
    b = at(to);
    return true;
}

void Raster::line(PixelPoint a, PixelPoint b, uint32_t color, bool smooth) {
    const float right = static_cast<float>(m_width) - 1.0f, bottom = static_cast<float>(m_height) - 1.0f;
    const bool inside = std::min(a.x, b.x) >= 0.0f && std::max(a.x, b.x) <= right &&
                        std::min(a.y, b.y) >= 0.0f && std::max(a.y, b.y) <= bottom;
    if (!inside && (!isFinite(a) || !isFinite(b) || !clip(a, b))) return;
    if (!m_depth.empty()) return deepLine(a, b, color);
    smooth ? smoothLine(a, b, color) : solidLine(a, b, color);
}

void Raster::solidLine(PixelPoint a, PixelPoint b, uint32_t color) {
    const float dx = b.x - a.x, dy = b.y - a.y;
    const bool steep = std::fabs(dy) > std::fabs(dx);
    // Along the longer side, from its lesser end.
    if (steep ? dy < 0.0f : dx < 0.0f) std::swap(a, b);
    const float along = steep ? b.y - a.y : b.x - a.x;
    const float across = steep ? b.x - a.x : b.y - a.y;
    const int first = static_cast<int>(steep ? a.y : a.x), last = static_cast<int>(steep ? b.y : b.x);
    const int64_t slope = along > 0.0f ? fixed(across / along) : 0;
    int64_t position = fixed(steep ? a.x : a.y);
    // The step from the line's end to the first pixel's middle may leave the picture by a fraction.
    const int64_t most = (static_cast<int64_t>(steep ? m_width : m_height) << FRACTION_BITS) - 1;
    const ptrdiff_t stride = steep ? m_width : 1;
    uint32_t* pixel = m_pixels + static_cast<ptrdiff_t>(first) * stride;
    const ptrdiff_t acrossStride = steep ? 1 : m_width;
    const int64_t end = position + slope * (last - first);
    if (position >= 0 && position <= most && end >= 0 && end <= most) {
        for (int at = first; at <= last; ++at, pixel += stride, position += slope) {
            pixel[(position >> FRACTION_BITS) * acrossStride] = color;
        }
        return;
    }
    for (int at = first; at <= last; ++at, pixel += stride, position += slope) {
        pixel[(std::clamp<int64_t>(position, 0, most) >> FRACTION_BITS) * acrossStride] = color;
    }
}

void Raster::deepLine(PixelPoint a, PixelPoint b, uint32_t color) {
    const int steps = static_cast<int>(std::max(std::fabs(b.x - a.x), std::fabs(b.y - a.y))) + 1;
    const float part = 1.0f / static_cast<float>(steps);
    for (int step = 0; step <= steps; ++step) point(between(a, b, static_cast<float>(step) * part), color);
}

void Raster::blend(int x, int y, uint32_t color, uint32_t coverage) {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) return;
    uint32_t& pixel = m_pixels[static_cast<size_t>(y) * m_width + x];
    // Red and blue at once, then green: each part is 8 bits, the coverage 0 to 256.
    const uint32_t odd = pixel & 0xFF00FF, even = pixel & 0x00FF00;
    pixel = ((odd + (((color & 0xFF00FF) - odd) * coverage >> 8)) & 0xFF00FF) |
            ((even + (((color & 0x00FF00) - even) * coverage >> 8)) & 0x00FF00);
}

// By Wu: the two pixels across the line share its ink.
void Raster::smoothLine(PixelPoint a, PixelPoint b, uint32_t color) {
    const bool steep = std::fabs(b.y - a.y) > std::fabs(b.x - a.x);
    if (steep ? b.y < a.y : b.x < a.x) std::swap(a, b);
    const float along = steep ? b.y - a.y : b.x - a.x;
    const float slope = along > 0.0f ? (steep ? b.x - a.x : b.y - a.y) / along : 0.0f;
    const int first = static_cast<int>(steep ? a.y : a.x), last = static_cast<int>(steep ? b.y : b.x);
    const float start = steep ? a.y : a.x;
    // At each pixel's middle; straight lines fall on one row of pixels and stay sharp.
    float position = (steep ? a.x : a.y) - 0.5f + slope * (static_cast<float>(first) + 0.5f - start);
    if (slope == 0.0f) position = std::floor(position + 0.5f);
    for (int at = first; at <= last; ++at, position += slope) {
        const float below = std::floor(position);
        const int row = static_cast<int>(below);
        const uint32_t coverage = static_cast<uint32_t>((position - below) * 256.0f);
        if (steep) {
            blend(row, at, color, 256 - coverage);
            blend(row + 1, at, color, coverage);
        } else {
            blend(at, row, color, 256 - coverage);
            blend(at, row + 1, color, coverage);
        }
    }
}

void Raster::line(PixelPoint a, PixelPoint b, uint32_t color, bool smooth, float width,
                  cad::LinePattern pattern) {
    const std::span<const float> dashes = dashesOf(pattern);
    if (!dashes.empty()) {
        // What can't be seen isn't cut into dashes.
        if (!isFinite(a) || !isFinite(b) || !clip(a, b)) return;
        const float length = std::hypot(b.x - a.x, b.y - a.y);
        size_t at = 0;
        for (float done = 0.0f; done < length; done += dashes[at % dashes.size()], ++at) {
            if (at % 2) continue;
            const float end = std::min(done + dashes[at % dashes.size()], length);
            line(between(a, b, done / length), between(a, b, end / length), color, smooth, width,
                 cad::LinePattern::continuous);
        }
        return;
    }
    if (width < 1.5f) return line(a, b, color, smooth);
    if (!isFinite(a) || !isFinite(b)) return;
    const float dx = b.x - a.x, dy = b.y - a.y;
    const float length = std::hypot(dx, dy);
    const float half = width / 2.0f / std::max(length, 1e-6f);
    const float sideX = -dy * half, sideY = dx * half;
    const PixelPoint corners[] = {{a.x + sideX, a.y + sideY, a.z},
                                  {b.x + sideX, b.y + sideY, b.z},
                                  {b.x - sideX, b.y - sideY, b.z},
                                  {a.x - sideX, a.y - sideY, a.z}};
    triangle(corners[0], corners[1], corners[2], color);
    triangle(corners[0], corners[2], corners[3], color);
}

void Raster::point(PixelPoint at, uint32_t color) {
    if (!(at.x >= 0.0f && at.y >= 0.0f && at.x < static_cast<float>(m_width) &&
          at.y < static_cast<float>(m_height)))
        return;
    const size_t index = static_cast<size_t>(at.y) * static_cast<size_t>(m_width) + static_cast<size_t>(at.x);
    if (!m_depth.empty()) {
        if (at.z < m_depth[index]) return;
        m_depth[index] = at.z;
    }
    m_pixels[index] = color;
}

void Raster::triangle(PixelPoint a, PixelPoint b, PixelPoint c, uint32_t color) {
    if (!isFinite(a) || !isFinite(b) || !isFinite(c)) return;
    if (a.y > b.y) std::swap(a, b);
    if (b.y > c.y) std::swap(b, c);
    if (a.y > b.y) std::swap(a, b);
    // Rows and columns whose middle lies inside.
    const auto firstMiddle = [](float edge, int most) {
        return static_cast<int>(std::clamp(std::ceil(edge - 0.5f), 0.0f, static_cast<float>(most)));
    };
    const int top = firstMiddle(a.y, m_height), bottom = firstMiddle(c.y, m_height);
    const float area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
    if (area == 0.0f) return;
    const float zx = ((b.z - a.z) * (c.y - a.y) - (c.z - a.z) * (b.y - a.y)) / area;
    const float zy = ((c.z - a.z) * (b.x - a.x) - (b.z - a.z) * (c.x - a.x)) / area;
    const float longSlope = (c.x - a.x) / (c.y - a.y);
    for (int y = top; y < bottom; ++y) {
        const float middle = static_cast<float>(y) + 0.5f;
        const bool upper = middle < b.y;
        const PixelPoint& from = upper ? a : b;
        const PixelPoint& to = upper ? b : c;
        const float one = a.x + (middle - a.y) * longSlope;
        const float other =
            to.y > from.y ? from.x + (middle - from.y) * ((to.x - from.x) / (to.y - from.y)) : to.x;
        const int left = firstMiddle(std::min(one, other), m_width);
        const int right = firstMiddle(std::max(one, other), m_width);
        uint32_t* const row = m_pixels + static_cast<size_t>(y) * m_width;
        if (m_depth.empty()) {
            if (left < right) std::fill(row + left, row + right, color);
            continue;
        }
        float* const depth = m_depth.data() + static_cast<size_t>(y) * m_width;
        float z = a.z + (static_cast<float>(left) + 0.5f - a.x) * zx + (middle - a.y) * zy;
        for (int x = left; x < right; ++x, z += zx) {
            if (z < depth[x]) continue;
            depth[x] = z;
            row[x] = color;
        }
    }
}

void Raster::fill(std::span<const std::vector<PixelPoint>> outlines, float z, uint32_t color) {
    float top = static_cast<float>(m_height), bottom = 0.0f;
    for (const auto& outline : outlines) {
        for (const PixelPoint& p : outline) {
            if (!isFinite(p)) return;
            top = std::min(top, p.y);
            bottom = std::max(bottom, p.y);
        }
    }
    const int first = std::max(0, static_cast<int>(std::floor(top)));
    const int last = static_cast<int>(std::min(static_cast<float>(m_height - 1), std::floor(bottom)));
    m_coverage.resize(static_cast<size_t>(m_width));
    std::vector<std::pair<float, int>> crossings;
    for (int y = first; y <= last; ++y) {
        int leftmost = m_width, rightmost = -1;
        const auto cover = [&](float from, float to) {
            from = std::clamp(from, 0.0f, static_cast<float>(m_width));
            to = std::clamp(to, 0.0f, static_cast<float>(m_width));
            for (int x = static_cast<int>(from); static_cast<float>(x) < to; ++x) {
                if (leftmost > rightmost) leftmost = rightmost = x, m_coverage[x] = 0.0f;
                while (x < leftmost) m_coverage[--leftmost] = 0.0f;
                while (x > rightmost) m_coverage[++rightmost] = 0.0f;
                m_coverage[x] +=
                    (std::min(to, static_cast<float>(x + 1)) - std::max(from, static_cast<float>(x))) /
                    SUB_ROWS;
            }
        };
        for (int sub = 0; sub < SUB_ROWS; ++sub) {
            const float middle = static_cast<float>(y) + (static_cast<float>(sub) + 0.5f) / SUB_ROWS;
            crossings.clear();
            for (const auto& outline : outlines) {
                for (size_t at = 0; at < outline.size(); ++at) {
                    const PixelPoint& p = outline[at];
                    const PixelPoint& q = outline[(at + 1) % outline.size()];
                    if ((p.y <= middle) == (q.y <= middle)) continue;
                    crossings.emplace_back(p.x + (middle - p.y) / (q.y - p.y) * (q.x - p.x),
                                           p.y < q.y ? 1 : -1);
                }
            }
            std::sort(crossings.begin(), crossings.end());
            int winding = 0;
            for (size_t at = 0; at + 1 < crossings.size(); ++at) {
                winding += crossings[at].second;
                if (winding) cover(crossings[at].first, crossings[at + 1].first);
            }
        }
        for (int x = leftmost; x <= rightmost; ++x) {
            if (m_coverage[x] <= 0.0f) continue;
            if (!m_depth.empty()) {
                float& depth = m_depth[static_cast<size_t>(y) * m_width + x];
                if (z < depth) continue;
                depth = z;
            }
            blend(x, y, color, static_cast<uint32_t>(std::min(1.0f, m_coverage[x]) * 256.0f));
        }
    }
}

}  // namespace graphics
