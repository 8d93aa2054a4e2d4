#include "host/graphics/Renderer.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace graphics {
namespace {

// More lines than these are drawn without smooth edges, which take four times as long.
constexpr size_t MOST_SMOOTH_LINES = 40'000;
// Edges are drawn a little before their faces, in pixels of depth.
constexpr float EDGE_NEARER = 1.0f;
// Letters that are lower are drawn as one line.
constexpr float LEAST_LETTER = 3.0f;
// Towards the light, from the upper left before the drawing.
constexpr float LIGHT[3] = {-0.33f, 0.47f, 0.82f};
constexpr float AMBIENT = 0.35f;

uint32_t lit(uint32_t color, float light) {
    const auto part = [&](int shift) {
        return static_cast<uint32_t>(static_cast<float>(color >> shift & 0xFF) * light) << shift;
    };
    return part(16) | part(8) | part(0);
}

// From scene points to pixels.
class Projection {
  public:
    Projection(const Scene& scene, const Camera& camera, int width, int height)
        : m_width(static_cast<float>(width)), m_height(static_cast<float>(height)) {
        HostMatrix3d flip = HostMatrix3d::scaling(1, -1, 1);
        flip.entry[1][3] = height;
        const HostMatrix3d whole = flip * camera.worldToDevice({0, 0, width, height});
        const HostPoint3d origin = whole * scene.origin;
        const double moves[] = {origin.x, origin.y, origin.z};
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column)
                m[row][column] = static_cast<float>(whole.entry[row][column]);
            m[row][3] = static_cast<float>(moves[row]);
        }
    }

    PixelPoint operator()(const ScenePoint& p) const {
        const auto row = [&](int at) { return m[at][0] * p.x + m[at][1] * p.y + m[at][2] * p.z + m[at][3]; };
        return {row(0), row(1), row(2)};
    }
    PixelPoint vector(const ScenePoint& v) const {
        const auto row = [&](int at) { return m[at][0] * v.x + m[at][1] * v.y + m[at][2] * v.z; };
        return {row(0), row(1), row(2)};
    }
    enum class Seen { no, asPoint, yes };
    Seen seen(const SceneBox& box, PixelPoint& centre) const {
        centre = (*this)(box.centre);
        const auto reach = [&](int at) {
            return std::fabs(m[at][0]) * box.reach.x + std::fabs(m[at][1]) * box.reach.y +
                   std::fabs(m[at][2]) * box.reach.z;
        };
        const float rx = reach(0), ry = reach(1);
        if (!(centre.x + rx >= 0.0f && centre.x - rx <= m_width && centre.y + ry >= 0.0f &&
              centre.y - ry <= m_height)) {
            return Seen::no;
        }
        return rx < 0.5f && ry < 0.5f ? Seen::asPoint : Seen::yes;
    }

  private:
    float m[3][4];
    float m_width, m_height;
};

class Rendering {
  public:
    Rendering(const Scene& scene, const Camera& camera, const Look& look, GlyphSource& glyphs, Raster& raster)
        : m_scene(scene),
          m_look(look),
          m_glyphs(glyphs),
          m_raster(raster),
          m_project(scene, camera, raster.width(), raster.height()) {
        m_smooth = scene.lineCount() <= MOST_SMOOTH_LINES;
    }

    void run() {
        const bool deep = m_look.style != Style::wireframe;
        drawTriangles(m_scene.solids, [](uint32_t color, const auto&) { return color; });
        if (deep) {
            const bool hidden = m_look.style == Style::hidden;
            drawTriangles(m_scene.faces, [&](uint32_t color, const std::array<PixelPoint, 3>& p) {
                return hidden ? m_look.background : lit(color, lightOn(p));
            });
        }
        for (const LineSet& set : m_scene.lines) {
            if (!set.look.isEdge || m_look.style != Style::shaded) drawLines(set);
        }
        for (const TextRun& run : m_scene.texts) drawText(run);
    }

  private:
    // Faces are lit on both sides.
    static float lightOn(const std::array<PixelPoint, 3>& p) {
        const float ax = p[1].x - p[0].x, ay = p[0].y - p[1].y, az = p[1].z - p[0].z;
        const float bx = p[2].x - p[0].x, by = p[0].y - p[2].y, bz = p[2].z - p[0].z;
        float nx = ay * bz - az * by, ny = az * bx - ax * bz, nz = ax * by - ay * bx;
        const float length = std::sqrt(nx * nx + ny * ny + nz * nz);
        if (!(length > 0.0f)) return 1.0f;
        if (nz < 0.0f) nx = -nx, ny = -ny, nz = -nz;
        const float along = std::max(0.0f, (nx * LIGHT[0] + ny * LIGHT[1] + nz * LIGHT[2]) / length);
        return AMBIENT + (1.0f - AMBIENT) * along;
    }

    // Calls `draw` with the number of each piece of the chunks that are seen.
    template <class Set, class Draw>
    void eachPiece(const Set& set, Draw draw) {
        for (const Chunk& chunk : set.chunks) {
            PixelPoint centre;
            const auto seen = m_project.seen(chunk.box, centre);
            if (seen == Projection::Seen::no) continue;
            if (seen == Projection::Seen::asPoint) {
                m_raster.point(centre, set.colors[chunk.first]);
                continue;
            }
            for (uint32_t at = chunk.first; at < chunk.first + chunk.count; at += m_look.stride) draw(at);
        }
    }

    template <class Color>
    void drawTriangles(const TriangleSet& set, Color colorOf) {
        eachPiece(set, [&](uint32_t at) {
            const Triangle& piece = set.pieces[at];
            const std::array<PixelPoint, 3> p = {m_project(piece.a), m_project(piece.b), m_project(piece.c)};
            m_raster.triangle(p[0], p[1], p[2], colorOf(set.colors[at], p));
        });
    }

    void drawLines(const LineSet& set) {
        const float width = set.look.width * m_look.scale;
        const float nearer = m_look.style == Style::wireframe ? 0.0f : EDGE_NEARER;
        const bool plain = width < 1.5f && set.look.pattern == cad::LinePattern::continuous;
        // Edges of shaded faces are dark.
        const bool dark = set.look.isEdge && m_look.style == Style::shadedWithEdges;
        eachPiece(set, [&](uint32_t at) {
            PixelPoint a = m_project(set.pieces[at].a), b = m_project(set.pieces[at].b);
            a.z += nearer;
            b.z += nearer;
            const uint32_t color = dark ? lit(set.colors[at], 0.25f) : set.colors[at];
            if (plain) {
                m_raster.line(a, b, color, m_smooth);
            } else {
                m_raster.line(a, b, color, m_smooth, width, set.look.pattern);
            }
        });
    }

    void drawText(const TextRun& run) {
        PixelPoint centre;
        if (m_project.seen(run.box, centre) != Projection::Seen::yes) return;
        const PixelPoint origin = m_project(run.origin), right = m_project.vector(run.right),
                         up = m_project.vector(run.up);
        const float height = std::hypot(up.x, up.y);
        float x = 0.0f;
        if (height < LEAST_LETTER) {
            for (const char16_t letter : run.letters) x += m_glyphs.glyph(letter).advance;
            return m_raster.line(place(origin, right, up, 0.0f, 0.5f), place(origin, right, up, x, 0.5f),
                                 run.color, m_smooth);
        }
        for (const char16_t letter : run.letters) {
            const Glyph& glyph = m_glyphs.glyph(letter);
            m_outlines.resize(glyph.outlines.size());
            for (size_t outline = 0; outline < glyph.outlines.size(); ++outline) {
                m_outlines[outline].clear();
                for (const GlyphPoint& p : glyph.outlines[outline]) {
                    m_outlines[outline].push_back(place(origin, right, up, x + p.x, p.y));
                }
            }
            m_raster.fill(m_outlines, place(origin, right, up, x, 0.0f).z + EDGE_NEARER, run.color);
            x += glyph.advance;
        }
    }

    static PixelPoint place(const PixelPoint& origin, const PixelPoint& right, const PixelPoint& up, float x,
                            float y) {
        return {origin.x + right.x * x + up.x * y, origin.y + right.y * x + up.y * y,
                origin.z + right.z * x + up.z * y};
    }

    const Scene& m_scene;
    const Look& m_look;
    GlyphSource& m_glyphs;
    Raster& m_raster;
    Projection m_project;
    bool m_smooth;
    std::vector<std::vector<PixelPoint>> m_outlines;
};

}  // namespace

void render(std::span<const Scene* const> scenes, const Camera& camera, const Look& look, GlyphSource& glyphs,
            Raster& raster) {
    if (raster.width() <= 0 || raster.height() <= 0) return;
    raster.clear(look.background);
    look.style == Style::wireframe ? raster.dropDepth() : raster.useDepth();
    for (const Scene* scene : scenes) Rendering(*scene, camera, look, glyphs, raster).run();
}

}  // namespace graphics
