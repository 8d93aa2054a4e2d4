#include "host/database/Inserts.h"

#include <cmath>
#include <numbers>

namespace cad {
namespace {

// Blocks in blocks can make a small file huge.
constexpr size_t MOST_PIECES = 1'000'000;
constexpr int MOST_DEPTH = 64;

struct Placing {
    const HostMatrix3d& matrix;

    Geometry operator()(const Line& line) const { return Line{matrix * line.start, matrix * line.end}; }
    Geometry operator()(const Polyline& polyline) const { return path(pointsOf(polyline)); }
    Geometry operator()(const Circle& circle) const {
        return path(
            arcPoints(planeOf(circle.center, circle.normal), circle.radius, 0.0, 2.0 * std::numbers::pi));
    }
    Geometry operator()(const Arc& arc) const {
        return path(arcPoints(planeOf(arc.center, arc.normal), arc.radius, arc.start, sweepOf(arc)));
    }
    Geometry operator()(const Text& text) const {
        Text moved = text;
        place(moved);
        return moved;
    }
    Geometry operator()(const MText& text) const {
        MText moved = text;
        moved.width *= place(moved);
        return moved;
    }
    Geometry operator()(const std::unique_ptr<Table>& table) const {
        auto moved = std::make_unique<Table>(*table);
        moved->position = matrix * table->position;
        const double wide = sizeOf(matrix * HostVector3d{1, 0, 0});
        const double high = sizeOf(matrix * HostVector3d{0, 1, 0});
        for (double& width : moved->columnWidths) width *= wide;
        for (double& height : moved->rowHeights) height *= high;
        moved->textHeight *= std::min(wide, high);
        return moved;
    }
    Geometry operator()(const Solid& solid) const {
        Solid moved = solid;
        for (HostPoint3d& corner : moved.corners) corner = matrix * corner;
        return moved;
    }
    Geometry operator()(const FaceMesh& mesh) const {
        FaceMesh moved = mesh;
        for (HostPoint3d& vertex : moved.vertices) vertex = matrix * vertex;
        return moved;
    }

  private:
    // What has a size keeps one.
    static double sizeOf(const HostVector3d& vector) { return std::max(HOST_TOLERANCE, vector.length()); }

    Geometry path(const std::vector<HostPoint3d>& points) const {
        Polyline moved;
        moved.vertices.reserve(points.size());
        for (const HostPoint3d& point : points) moved.vertices.push_back({matrix * point});
        return moved;
    }

    // Gives by how much the letters became wider.
    double place(Lettering& text) const {
        const HostMatrix3d plane = textPlane(text);
        const HostVector3d along = matrix * (plane * HostVector3d{1, 0, 0});
        const HostVector3d up = matrix * (plane * HostVector3d{0, 1, 0});
        const HostVector3d normal = along.crossProduct(up);
        if (std::isfinite(normal.length()) && normal.length() > HOST_TOLERANCE) text.normal = normal.normal();
        text.position = matrix * text.position;
        text.height *= sizeOf(up);
        const HostVector3d turned = planeOf({}, text.normal).inverse() * along;
        text.rotation = std::atan2(turned.y, turned.x);
        return sizeOf(along);
    }
};

HostMatrix3d movedBy(const HostVector3d& way) {
    return HostMatrix3d::coordSystem(HostPoint3d() + way, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
}

size_t piecesOf(const Entity& entity) {
    if (const auto* mesh = std::get_if<FaceMesh>(&entity.geometry))
        return 1 + mesh->vertices.size() + mesh->faces.size();
    if (const auto* polyline = std::get_if<Polyline>(&entity.geometry)) return 1 + polyline->vertices.size();
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&entity.geometry))
        return 1 + (*table)->cells.size();
    return 1;
}

}  // namespace

Entity placed(const Entity& entity, const HostMatrix3d& matrix) {
    Entity moved;
    moved.geometry = std::visit(Placing{matrix}, entity.geometry);
    moved.layer = entity.layer;
    moved.color = entity.color;
    moved.pattern = entity.pattern;
    moved.lineWidth = entity.lineWidth;
    return moved;
}

std::map<std::string, int> Inserts::resolve(Drawing& drawing) {
    for (const auto& block : drawing.blocks()) resolve(drawing, *block, 0);
    if (m_leftOut == 0) return {};
    return {{"INSERT", m_leftOut}};
}

void Inserts::resolve(Drawing& drawing, Block& block, int depth) {
    const auto found = m_inserts.find(block.id());
    if (found == m_inserts.end()) return;
    const std::vector<Insert> inserts = std::move(found->second);
    m_inserts.erase(found);
    m_open.insert(block.id());
    for (const Insert& insert : inserts) {
        Block* from = drawing.block(insert.block);
        bool done = from && !m_open.contains(from->id()) && depth < MOST_DEPTH;
        if (done) {
            resolve(drawing, *from, depth + 1);
            done = copy(*from, insert, block);
        }
        m_leftOut += !done;
    }
    m_open.erase(block.id());
}

bool Inserts::copy(const Block& from, const Insert& insert, Block& into) {
    if (from.entities().empty()) return true;
    size_t pieces = 0;
    for (const Entity& entity : from.entities()) pieces += piecesOf(entity);
    const auto copies = static_cast<size_t>(insert.columns) * static_cast<size_t>(insert.rows);
    if (pieces * copies > MOST_PIECES - m_copied) {
        // All that follow are left out too, without a look at them.
        m_copied = MOST_PIECES;
        return false;
    }
    m_copied += pieces * copies;
    const HostMatrix3d scale = HostMatrix3d::scaling(insert.scale.x, insert.scale.y, insert.scale.z);
    const HostMatrix3d toOrigin = movedBy(HostPoint3d() - from.origin);
    for (int row = 0; row < insert.rows; ++row) {
        for (int column = 0; column < insert.columns; ++column) {
            const HostVector3d step{column * insert.columnStep, row * insert.rowStep, 0.0};
            const HostMatrix3d place = insert.place * movedBy(step) * scale * toOrigin;
            for (const Entity& entity : from.entities()) {
                Entity& copied = into.add(placed(entity, place));
                if (copied.layer == 0) copied.layer = insert.layer;
            }
        }
    }
    return true;
}

}  // namespace cad
