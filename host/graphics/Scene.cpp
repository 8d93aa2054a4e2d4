#include "host/graphics/Scene.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace graphics {
namespace {

constexpr uint32_t CHUNK_PIECES = 256;
// Fewer pieces are drawn in no time in whatever order.
constexpr size_t FEW_PIECES = 1024;

class Box {
  public:
    void add(const ScenePoint& p) {
        m_min = {std::min(m_min.x, p.x), std::min(m_min.y, p.y), std::min(m_min.z, p.z)};
        m_max = {std::max(m_max.x, p.x), std::max(m_max.y, p.y), std::max(m_max.z, p.z)};
    }
    void add(const LinePiece& piece) {
        add(piece.a);
        add(piece.b);
    }
    void add(const Triangle& piece) {
        add(piece.a);
        add(piece.b);
        add(piece.c);
    }
    SceneBox box() const {
        const auto half = [](float least, float most) { return most * 0.5f - least * 0.5f; };
        const auto middle = [](float least, float most) { return most * 0.5f + least * 0.5f; };
        return {{middle(m_min.x, m_max.x), middle(m_min.y, m_max.y), middle(m_min.z, m_max.z)},
                {half(m_min.x, m_max.x), half(m_min.y, m_max.y), half(m_min.z, m_max.z)}};
    }

  private:
    static constexpr float FARTHEST = 3.4e38f;
    ScenePoint m_min{FARTHEST, FARTHEST, FARTHEST};
    ScenePoint m_max{-FARTHEST, -FARTHEST, -FARTHEST};
};

// Ten bits of each coordinate in turn, so that near numbers mean near places.
uint32_t spread(uint32_t bits) {
    bits = (bits | bits << 16) & 0x030000FF;
    bits = (bits | bits << 8) & 0x0300F00F;
    bits = (bits | bits << 4) & 0x030C30C3;
    return (bits | bits << 2) & 0x09249249;
}

template <class Piece>
uint32_t placeOf(const Piece& piece, const SceneBox& all) {
    Box own;
    own.add(piece);
    const ScenePoint middle = own.box().centre;
    const auto tenBits = [](float value, float centre, float reach) {
        const float part = reach > 0.0f ? (value - centre) / reach * 511.0f + 512.0f : 512.0f;
        // What is too far for a float comes as no number.
        return part > 0.0f ? static_cast<uint32_t>(std::min(part, 1023.0f)) : 0u;
    };
    return spread(tenBits(middle.x, all.centre.x, all.reach.x)) << 2 |
           spread(tenBits(middle.y, all.centre.y, all.reach.y)) << 1 |
           spread(tenBits(middle.z, all.centre.z, all.reach.z));
}

// Brings pieces that lie together to stand together, and gathers them in chunks.
template <class Set>
void gather(Set& set) {
    using Pieces = decltype(set.pieces);
    const size_t count = set.pieces.size();
    if (count > FEW_PIECES) {
        Box all;
        for (const auto& piece : set.pieces) all.add(piece);
        std::vector<std::pair<uint32_t, uint32_t>> order(count);
        for (size_t at = 0; at < count; ++at) {
            order[at] = {placeOf(set.pieces[at], all.box()), static_cast<uint32_t>(at)};
        }
        std::sort(order.begin(), order.end());
        Pieces pieces(count);
        std::vector<uint32_t> colors(count);
        for (size_t at = 0; at < count; ++at) {
            pieces[at] = set.pieces[order[at].second];
            colors[at] = set.colors[order[at].second];
        }
        set.pieces = std::move(pieces);
        set.colors = std::move(colors);
    }
    for (uint32_t first = 0; first < count; first += CHUNK_PIECES) {
        const uint32_t pieces = std::min(CHUNK_PIECES, static_cast<uint32_t>(count) - first);
        Box box;
        for (uint32_t at = first; at < first + pieces; ++at) box.add(set.pieces[at]);
        set.chunks.push_back({first, pieces, box.box()});
    }
}

class SceneBuilder {
  public:
    SceneBuilder(const cad::Drawing& drawing, const cad::Block& block, GlyphSource& glyphs)
        : m_glyphs(glyphs) {
        const HostExtents& extents = block.extents();
        if (!extents.isEmpty()) m_scene.origin = HostLineSeg3d{extents.min, extents.max}.midPoint();
        for (const cad::Entity& entity : block.entities()) {
            if (!drawing.layer(entity.layer).visible) continue;
            m_entity = &entity;
            m_color = drawing.rgbOf(entity);
            std::visit(*this, entity.geometry);
        }
        for (auto& [look, set] : m_lines) {
            gather(set);
            m_scene.lines.push_back(std::move(set));
        }
        gather(m_scene.solids);
        gather(m_scene.faces);
    }

    Scene take() { return std::move(m_scene); }

    void operator()(const cad::Line& line) { add(line.start, line.end); }
    void operator()(const cad::Polyline& polyline) { addPath(pointsOf(polyline)); }
    void operator()(const cad::Circle& circle) {
        addPath(cad::arcPoints(cad::planeOf(circle.center, circle.normal), circle.radius, 0.0,
                               6.283185307179586));
    }
    void operator()(const cad::Arc& arc) {
        addPath(cad::arcPoints(cad::planeOf(arc.center, arc.normal), arc.radius, arc.start, sweepOf(arc)));
    }
    void operator()(const cad::Text& text) { addText(cad::textPlane(text), text.height, text.contents); }
    void operator()(const cad::MText& text) {
        HostMatrix3d plane = cad::textPlane(text);
        const HostPoint3d first = plane * HostPoint3d{0.0, -text.height, 0.0};
        const HostVector3d down = plane * HostVector3d{0.0, -text.height * cad::LINE_SPACING, 0.0};
        HostPoint3d at = first;
        for (const std::u16string& line : linesOf(text)) {
            setOrigin(plane, at);
            addText(plane, text.height, line);
            at = at + down;
        }
    }
    void operator()(const std::unique_ptr<cad::Table>& table);
    void operator()(const cad::Solid& solid) {
        const auto& c = solid.corners;
        addTriangle(m_scene.solids, c[0], c[1], c[2]);
        addTriangle(m_scene.solids, c[0], c[2], c[3]);
    }
    void operator()(const cad::FaceMesh& mesh) {
        for (const auto& face : mesh.faces) {
            const auto corner = [&](int at) -> const HostPoint3d& {
                return mesh.vertices[face[static_cast<size_t>(at)]];
            };
            addTriangle(m_scene.faces, corner(0), corner(1), corner(2));
            if (face[3] != face[2]) addTriangle(m_scene.faces, corner(0), corner(2), corner(3));
            const int corners = face[3] != face[2] ? 4 : 3;
            for (int at = 0; at < corners; ++at) addEdge(corner(at), corner((at + 1) % corners));
        }
    }

  private:
    ScenePoint local(const HostPoint3d& p) const {
        const HostVector3d v = p - m_scene.origin;
        return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
    }
    static ScenePoint local(const HostVector3d& v) {
        return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
    }
    static void setOrigin(HostMatrix3d& plane, const HostPoint3d& p) {
        plane.entry[0][3] = p.x;
        plane.entry[1][3] = p.y;
        plane.entry[2][3] = p.z;
    }

    void add(LineSet& set, const HostPoint3d& a, const HostPoint3d& b) {
        set.pieces.push_back({local(a), local(b)});
        set.colors.push_back(m_color);
    }
    LineSet& setOf(const LineLook& look) {
        if (!m_last || m_last->look != look) {
            m_last = &m_lines[look];
            m_last->look = look;
        }
        return *m_last;
    }
    void add(const HostPoint3d& a, const HostPoint3d& b) {
        add(setOf({.width = m_entity->lineWidth, .pattern = m_entity->pattern}), a, b);
    }
    void addEdge(const HostPoint3d& a, const HostPoint3d& b) { add(setOf({.isEdge = true}), a, b); }
    void addPath(const std::vector<HostPoint3d>& points) {
        for (size_t at = 1; at < points.size(); ++at) add(points[at - 1], points[at]);
    }
    void addTriangle(TriangleSet& set, const HostPoint3d& a, const HostPoint3d& b, const HostPoint3d& c) {
        set.pieces.push_back({local(a), local(b), local(c)});
        set.colors.push_back(m_color);
    }
    double widthOf(std::u16string_view letters) {
        double width = 0.0;
        for (const char16_t letter : letters) width += m_glyphs.glyph(letter).advance;
        return width;
    }
    void addText(const HostMatrix3d& plane, double height, const std::u16string& letters) {
        if (letters.empty()) return;
        TextRun run{.origin = local(plane * HostPoint3d()),
                    .right = local(plane * HostVector3d{height, 0, 0}),
                    .up = local(plane * HostVector3d{0, height, 0}),
                    .color = m_color,
                    .letters = letters};
        const double width = widthOf(letters) * height;
        Box box;
        // Letters reach below the baseline and may stand over at both ends.
        for (const double x : {-height, width + height}) {
            for (const double y : {-height, 2.0 * height}) box.add(local(plane * HostPoint3d{x, y, 0.0}));
        }
        run.box = box.box();
        m_scene.texts.push_back(std::move(run));
    }

    GlyphSource& m_glyphs;
    Scene m_scene;
    std::map<LineLook, LineSet> m_lines;
    LineSet* m_last = nullptr;
    const cad::Entity* m_entity = nullptr;
    uint32_t m_color = 0;
};

void SceneBuilder::operator()(const std::unique_ptr<cad::Table>& table) {
    const HostMatrix3d plane = cad::planeOf(table->position, {0, 0, 1});
    const double width = std::accumulate(table->columnWidths.begin(), table->columnWidths.end(), 0.0);
    const double height = std::accumulate(table->rowHeights.begin(), table->rowHeights.end(), 0.0);
    const auto lineAt = [&](double x1, double y1, double x2, double y2) {
        add(plane * HostPoint3d{x1, -y1, 0.0}, plane * HostPoint3d{x2, -y2, 0.0});
    };
    double x = 0.0, y = 0.0;
    lineAt(0, 0, width, 0);
    for (const double row : table->rowHeights) lineAt(0, y + row, width, y + row), y += row;
    lineAt(0, 0, 0, height);
    for (const double column : table->columnWidths) lineAt(x + column, 0, x + column, height), x += column;
    y = 0.0;
    auto cell = table->cells.begin();
    for (const double row : table->rowHeights) {
        x = 0.0;
        for (const double column : table->columnWidths) {
            HostMatrix3d place = plane;
            const double left = x + (column - widthOf(*cell) * table->textHeight) / 2.0;
            setOrigin(place, plane * HostPoint3d{left, -(y + (row + table->textHeight) / 2.0), 0.0});
            addText(place, table->textHeight, *cell++);
            x += column;
        }
        y += row;
    }
}

}  // namespace

size_t Scene::lineCount() const {
    size_t count = 0;
    for (const LineSet& set : lines) count += set.pieces.size();
    return count;
}

Scene sceneOf(const cad::Drawing& drawing, const cad::Block& block, GlyphSource& glyphs) {
    return SceneBuilder(drawing, block, glyphs).take();
}

}  // namespace graphics
