// What a drawing consists of. Angles are radians, against the clock about the normal; lengths are world
// units.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "host/database/Color.h"
#include "src/platform/host/HostGeometry.h"

namespace cad {

struct Line {
    HostPoint3d start, end;
};

struct Vertex {
    HostPoint3d point;
    // The tangent of a quarter of the arc to the next vertex, positive against the clock; 0 is straight.
    double bulge = 0.0;
};

struct Polyline {
    std::vector<Vertex> vertices;
    bool closed = false;
    HostVector3d normal{0, 0, 1};
};

struct Circle {
    HostPoint3d center;
    double radius = 0.0;
    HostVector3d normal{0, 0, 1};
};

struct Arc {
    HostPoint3d center;
    double radius = 0.0;
    double start = 0.0, end = 0.0;
    HostVector3d normal{0, 0, 1};
};

struct Lettering {
    HostPoint3d position;
    double height = 1.0;
    double rotation = 0.0;
    HostVector3d normal{0, 0, 1};
    std::u16string contents;
};

// One line of text, its baseline beginning at the position.
struct Text : Lettering {};

// Text below and to the right of the position. "\P" and line ends begin a line; a width above 0 wraps it
// between words.
struct MText : Lettering {
    double width = 0.0;
};

// A grid of cells in the plane of X and Y, below and to the right of the position.
struct Table {
    HostPoint3d position;
    uint64_t style = 0;
    double textHeight = 0.18;
    std::vector<double> rowHeights;
    std::vector<double> columnWidths;
    // Row by row.
    std::vector<std::u16string> cells;

    int rows() const { return static_cast<int>(rowHeights.size()); }
    int columns() const { return static_cast<int>(columnWidths.size()); }
    std::u16string* cell(int row, int column) {
        const bool inside = row >= 0 && row < rows() && column >= 0 && column < columns();
        return inside ? &cells[static_cast<size_t>(row) * columnWidths.size() + static_cast<size_t>(column)]
                      : nullptr;
    }
};

// A filled quadrilateral; three corners have the last one twice.
struct Solid {
    std::array<HostPoint3d, 4> corners;
};

struct FaceMesh {
    std::vector<HostPoint3d> vertices;
    // Corners by number from 0; a triangle has the last one twice.
    std::vector<std::array<uint32_t, 4>> faces;
};

using Geometry =
    std::variant<Line, Polyline, Circle, Arc, Text, MText, std::unique_ptr<Table>, Solid, FaceMesh>;

enum class LinePattern : uint8_t { continuous, dashed, dotted, dashDot };

struct Entity {
    Geometry geometry;
    uint32_t layer = 0;
    ColorIndex color = BY_LAYER;
    LinePattern pattern = LinePattern::continuous;
    // In pixels at 96 dots per inch.
    float lineWidth = 1.0f;
};

// "LINE", "POLYLINE" and so on, as drawing files and Lisp name them.
const char* kindOf(const Entity& entity);

// The frame in whose plane of X and Y a flat thing with that normal lies, by the arbitrary axis rule.
HostMatrix3d planeOf(const HostPoint3d& origin, const HostVector3d& normal);

// The points of an arc, both ends included, so close that it is nowhere further than a thousandth of its
// radius from the true one. `sweep` may be negative.
std::vector<HostPoint3d> arcPoints(const HostMatrix3d& plane, double radius, double start, double sweep);

// The angle through which an arc runs against the clock; a whole turn where start and end agree.
double sweepOf(const Arc& arc);

// The points of a polyline with its arcs; a closed one ends where it began.
std::vector<HostPoint3d> pointsOf(const Polyline& polyline);

// Where a text lies: the letters stand on the frame's X axis.
HostMatrix3d textPlane(const Lettering& text);

// The lines into which a text breaks. `width` in characters, 0 for none.
std::vector<std::u16string> linesOf(const std::u16string& contents, size_t width);
std::vector<std::u16string> linesOf(const MText& text);

// How wide a text of that height is taken to be where no font is at hand, and how far its lines stand apart.
constexpr double LETTER_WIDTH = 0.6;
constexpr double LINE_SPACING = 5.0 / 3.0;

// False where the entity draws nothing.
bool extentsOf(const Entity& entity, HostExtents& extents);

}  // namespace cad
