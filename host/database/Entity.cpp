#include "host/database/Entity.h"

#include <cmath>
#include <numbers>

namespace cad {
namespace {

// An arc of a radius departs from its chord by radius * (1 - cos(step / 2)).
constexpr double ARC_STEP = 0.0894;
constexpr int MOST_ARC_STEPS = 1024;

void addBox(HostExtents& extents, const HostMatrix3d& plane, double left, double bottom, double right,
            double top) {
    for (const HostPoint3d corner :
         {HostPoint3d{left, bottom, 0}, {right, bottom, 0}, {left, top, 0}, {right, top, 0}}) {
        extents.addPoint(plane * corner);
    }
}

double sum(const std::vector<double>& sizes) {
    double total = 0.0;
    for (const double size : sizes) total += size;
    return total;
}

struct ExtentsOf {
    HostExtents& extents;

    void operator()(const Line& line) const {
        extents.addPoint(line.start);
        extents.addPoint(line.end);
    }
    void operator()(const Polyline& polyline) const {
        for (const HostPoint3d& point : pointsOf(polyline)) extents.addPoint(point);
    }
    void operator()(const Circle& circle) const {
        // Along each axis a circle reaches as far as its radius times the sine of the angle to the normal.
        const HostVector3d n = circle.normal.normal();
        const auto reach = [&](double part) {
            return circle.radius * std::sqrt(std::max(0.0, 1.0 - part * part));
        };
        const HostVector3d reaches{reach(n.x), reach(n.y), reach(n.z)};
        extents.addPoint(circle.center + reaches);
        extents.addPoint(circle.center - reaches);
    }
    void operator()(const Arc& arc) const {
        for (const HostPoint3d& point :
             arcPoints(planeOf(arc.center, arc.normal), arc.radius, arc.start, sweepOf(arc))) {
            extents.addPoint(point);
        }
    }
    void operator()(const Text& text) const {
        if (text.contents.empty()) return;
        addBox(extents, textPlane(text), 0.0, 0.0,
               static_cast<double>(text.contents.size()) * text.height * LETTER_WIDTH, text.height);
    }
    void operator()(const MText& text) const {
        const std::vector<std::u16string> lines = linesOf(text);
        size_t longest = 0;
        for (const std::u16string& line : lines) longest = std::max(longest, line.size());
        if (longest == 0) return;
        const double height = text.height * (1.0 + static_cast<double>(lines.size() - 1) * LINE_SPACING);
        addBox(extents, textPlane(text), 0.0, -height,
               static_cast<double>(longest) * text.height * LETTER_WIDTH, 0.0);
    }
    void operator()(const std::unique_ptr<Table>& table) const {
        if (!table->rows() || !table->columns()) return;
        addBox(extents, planeOf(table->position, {0, 0, 1}), 0.0, -sum(table->rowHeights),
               sum(table->columnWidths), 0.0);
    }
    void operator()(const Solid& solid) const {
        for (const HostPoint3d& corner : solid.corners) extents.addPoint(corner);
    }
    void operator()(const FaceMesh& mesh) const {
        for (const HostPoint3d& vertex : mesh.vertices) extents.addPoint(vertex);
    }
};

}  // namespace

const char* kindOf(const Entity& entity) {
    static constexpr const char* names[] = {"LINE",  "POLYLINE", "CIRCLE", "ARC", "TEXT",
                                            "MTEXT", "TABLE",    "SOLID",  "MESH"};
    static_assert(std::size(names) == std::variant_size_v<Geometry>);
    return names[entity.geometry.index()];
}

HostMatrix3d planeOf(const HostPoint3d& origin, const HostVector3d& normal) {
    const HostVector3d z = normal.normal();
    const HostVector3d x = z.perpVector().normal();
    return HostMatrix3d::coordSystem(origin, x, z.crossProduct(x), z);
}

HostMatrix3d textPlane(const Lettering& text) {
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    return planeOf(text.position, text.normal) *
           HostMatrix3d{{{c, -s, 0, 0}, {s, c, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
}

double sweepOf(const Arc& arc) {
    const double sweep = std::fmod(arc.end - arc.start, 2.0 * std::numbers::pi);
    return sweep <= 0.0 ? sweep + 2.0 * std::numbers::pi : sweep;
}

std::vector<HostPoint3d> arcPoints(const HostMatrix3d& plane, double radius, double start, double sweep) {
    const double wanted = std::ceil(std::fabs(sweep) / ARC_STEP);
    const int steps =
        std::isfinite(wanted) ? static_cast<int>(std::clamp(wanted, 1.0, double(MOST_ARC_STEPS))) : 1;
    std::vector<HostPoint3d> points;
    points.reserve(static_cast<size_t>(steps) + 1);
    for (int step = 0; step <= steps; ++step) {
        const double angle = start + sweep * step / steps;
        points.push_back(plane * HostPoint3d{radius * std::cos(angle), radius * std::sin(angle), 0.0});
    }
    return points;
}

std::vector<HostPoint3d> pointsOf(const Polyline& polyline) {
    std::vector<HostPoint3d> points;
    const std::vector<Vertex>& vertices = polyline.vertices;
    const size_t sides = vertices.size() < 2 ? 0 : vertices.size() - (polyline.closed ? 0 : 1);
    if (!vertices.empty()) points.push_back(vertices[0].point);
    for (size_t at = 0; at < sides; ++at) {
        const HostPoint3d& a = vertices[at].point;
        const HostPoint3d& b = vertices[(at + 1) % vertices.size()].point;
        const HostVector3d chord = b - a;
        const double bulge = vertices[at].bulge;
        if (bulge != 0.0 && chord.length() > 0.0) {
            // The centre lies on the chord's bisector, (1 - bulge^2) / (4 bulge) chords to its left.
            const HostVector3d side = polyline.normal.normal().crossProduct(chord);
            const HostPoint3d center = a + chord * 0.5 + side * ((1.0 - bulge * bulge) / (4.0 * bulge));
            const HostMatrix3d plane = planeOf(center, polyline.normal);
            const HostPoint3d from = plane.inverse() * a;
            const auto arc = arcPoints(plane, std::hypot(from.x, from.y), std::atan2(from.y, from.x),
                                       4.0 * std::atan(bulge));
            points.insert(points.end(), arc.begin() + 1, arc.end() - 1);
        }
        points.push_back(b);
    }
    return points;
}

std::vector<std::u16string> linesOf(const std::u16string& contents, size_t width) {
    std::vector<std::u16string> lines(1);
    const auto breakLine = [&] { lines.emplace_back(); };
    for (size_t at = 0; at < contents.size(); ++at) {
        const char16_t letter = contents[at];
        if (letter == u'\r') continue;
        if (letter == u'\n') {
            breakLine();
        } else if (letter == u'\\' && at + 1 < contents.size() && contents[at + 1] == u'P') {
            breakLine();
            ++at;
        } else {
            lines.back() += letter;
            if (width == 0 || lines.back().size() <= width) continue;
            const size_t blank = lines.back().rfind(u' ');
            if (blank == std::u16string::npos || blank == 0) continue;
            std::u16string rest = lines.back().substr(blank + 1);
            lines.back().resize(blank);
            lines.push_back(std::move(rest));
        }
    }
    return lines;
}

std::vector<std::u16string> linesOf(const MText& text) {
    const double letters =
        text.width > 0.0 && text.height > 0.0 ? text.width / (text.height * LETTER_WIDTH) : 0.0;
    return linesOf(text.contents, letters < 1.0 ? 0 : static_cast<size_t>(std::min(letters, 1e6)));
}

bool extentsOf(const Entity& entity, HostExtents& extents) {
    HostExtents own;
    std::visit(ExtentsOf{own}, entity.geometry);
    if (own.isEmpty()) return false;
    extents.addExt(own);
    return true;
}

}  // namespace cad
