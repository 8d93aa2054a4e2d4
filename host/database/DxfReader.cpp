#include "host/database/DxfReader.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "host/database/DrawingFile.h"
#include "host/database/DxfGroups.h"
#include "host/database/Inserts.h"
#include "host/lisp/Text.h"

namespace cad {
namespace {

constexpr double DEGREE = std::numbers::pi / 180.0;
constexpr int MOST_TABLE_CELLS = 1'000'000;

Geometry lightPolyline(const Record& record) {
    Polyline polyline;
    polyline.closed = record.whole(70) & 1;
    polyline.normal = record.normal();
    const double elevation = record.number(38);
    for (const Group& group : record.groups()) {
        if (group.code == 10) polyline.vertices.push_back({{group.number(), 0.0, elevation}});
        if (polyline.vertices.empty()) continue;
        if (group.code == 20) polyline.vertices.back().point.y = group.number();
        if (group.code == 42) polyline.vertices.back().bulge = group.number();
    }
    const HostMatrix3d plane = record.plane();
    for (Vertex& vertex : polyline.vertices) vertex.point = plane * vertex.point;
    return polyline;
}

Geometry textOf(const Record& record) {
    // Where the text is aligned the second point counts; for other than left and baseline it's taken as if it
    // were.
    const bool aligned = (record.whole(72) || record.whole(73)) && record.has(11);
    return Text{{record.plane() * record.point(aligned ? 11 : 10), record.positive(40),
                 record.number(50) * DEGREE, record.normal(), decodedText(record.text(1))}};
}

Geometry multiLineText(const Record& record) {
    std::string bytes;
    for (const Group& group : record.groups()) {
        if (group.code == 3) bytes += group.value;
    }
    bytes += record.text(1);
    MText text{{record.point(10), record.positive(40), record.number(50) * DEGREE, record.normal(),
                withoutFormats(decodedText(bytes))},
               std::fmax(0.0, record.number(41))};
    if (record.has(11)) text.rotation = std::atan2(record.number(21), record.number(11));
    // The attachment's row: the position is the top, the middle or the bottom of the text.
    const int row = (record.whole(71, 1) - 1) / 3;
    if (row == 1 || row == 2) {
        const double lines = static_cast<double>(linesOf(text).size() - 1) * LINE_SPACING + 1.0;
        const HostVector3d up = textPlane(text) * HostVector3d{0, 1, 0};
        text.position = text.position + up * (text.height * lines * row / 2.0);
    }
    return text;
}

double sizeOf(const Group& group) {
    const double size = group.number();
    return size > 0.0 ? size : 1.0;
}

Geometry tableOf(const Record& record) {
    auto table = std::make_unique<Table>();
    table->position = record.point(10);
    const int rows = record.whole(91), columns = record.whole(92);
    if (rows < 0 || columns < 0 || int64_t{rows} * columns > MOST_TABLE_CELLS) {
        throw FileFault(record.line(), "a table of this size can't be read");
    }
    for (const Group& group : record.groups()) {
        if (group.code == 141) table->rowHeights.push_back(sizeOf(group));
        if (group.code == 142) table->columnWidths.push_back(sizeOf(group));
        if (group.code == 140 && group.number() > 0.0) table->textHeight = group.number();
        if ((group.code == 1 || group.code == 302) && table->cells.size() < MOST_TABLE_CELLS) {
            table->cells.push_back(withoutFormats(decodedText(group.value)));
        }
    }
    table->rowHeights.resize(static_cast<size_t>(rows), 1.0);
    table->columnWidths.resize(static_cast<size_t>(columns), 1.0);
    table->cells.resize(static_cast<size_t>(rows) * static_cast<size_t>(columns));
    return table;
}

Geometry solidOf(const Record& record) {
    const HostMatrix3d plane = record.plane();
    const HostPoint3d third = plane * record.point(12);
    const HostPoint3d fourth = record.has(13) ? plane * record.point(13) : third;
    // The third and the fourth corner stand crosswise.
    return Solid{{plane * record.point(10), plane * record.point(11), fourth, third}};
}

Geometry faceOf(const Record& record) {
    const HostPoint3d third = record.point(12);
    return FaceMesh{{record.point(10), record.point(11), third, record.has(13) ? record.point(13) : third},
                    {{0, 1, 2, 3}}};
}

std::optional<Geometry> geometryOf(const Record& record) {
    const std::string_view kind = record.kind();
    if (kind == "LINE") return Line{record.point(10), record.point(11)};
    if (kind == "LWPOLYLINE") return lightPolyline(record);
    if (kind == "CIRCLE")
        return Circle{record.plane() * record.point(10), record.positive(40), record.normal()};
    if (kind == "ARC") {
        return Arc{record.plane() * record.point(10), record.positive(40), record.number(50) * DEGREE,
                   record.number(51) * DEGREE, record.normal()};
    }
    if (kind == "TEXT") return textOf(record);
    // The text of an insert. Definitions of such texts aren't drawn.
    constexpr int INVISIBLE = 1;
    if (kind == "ATTRIB" && !(record.whole(70) & INVISIBLE)) return textOf(record);
    if (kind == "MTEXT") return multiLineText(record);
    if (kind == "SOLID" || kind == "TRACE") return solidOf(record);
    if (kind == "3DFACE") return faceOf(record);
    if (kind.ends_with("_TABLE")) return tableOf(record);
    return std::nullopt;
}

class DxfImport {
  public:
    explicit DxfImport(std::string_view text) : m_groups(text) {}

    DxfDrawing read() {
        const Group& group = m_groups.group();
        if (!group.is(0, "SECTION") && group.code != 999)
            throw FileFault(1, "this is no file in the exchange format");
        while (!group.is(0, "EOF")) {
            if (group.code == 2 && group.value == "TABLES") {
                readLayers();
            } else if (group.code == 2 && group.value == "BLOCKS") {
                readBlocks();
            } else if (group.code == 2 && group.value == "ENTITIES") {
                m_groups.next();
                readEntities(m_result.drawing.modelSpace(), "ENDSEC");
            } else {
                m_groups.next();
            }
        }
        m_result.skipped.merge(m_inserts.resolve(m_result.drawing));
        return std::move(m_result);
    }

  private:
    const Group& group() const { return m_groups.group(); }
    bool at(std::string_view kind) const { return group().is(0, kind) || group().is(0, "EOF"); }

    void readLayers() {
        for (m_groups.next(); !at("ENDSEC");) {
            if (!group().is(0, "LAYER")) {
                m_groups.next();
                continue;
            }
            const Record record(m_groups);
            Layer& layer = m_result.drawing.layer(layerOf(record.text(2)));
            const int color = record.whole(62, WHITE);
            layer.visible = color >= 0 && !(record.whole(70) & 1);
            layer.color = static_cast<ColorIndex>(std::min(std::abs(color), 255));
        }
    }

    void readBlocks() {
        for (m_groups.next(); !at("ENDSEC");) {
            if (!group().is(0, "BLOCK")) {
                m_groups.next();
                continue;
            }
            const Record record(m_groups);
            const std::u16string name = decodedText(record.text(2));
            Block* block = m_result.drawing.block(name);
            if (!block) block = &m_result.drawing.addBlock(name.empty() ? unnamed() : name);
            block->origin = record.point(10);
            readEntities(*block, "ENDBLK");
        }
    }

    std::u16string unnamed() {
        std::u16string name;
        do name = u"*Unnamed" + lisp::decimal(int64_t{++m_unnamed});
        while (m_result.drawing.block(name));
        return name;
    }

    uint32_t layerOf(std::string_view name) {
        return m_result.drawing.layerNamed(name.empty() ? u"0" : decodedText(name));
    }

    void readEntities(Block& block, std::string_view end) {
        while (!at(end)) {
            if (group().code != 0) {
                m_groups.next();
                continue;
            }
            const Record record(m_groups);
            constexpr int ON_PAPER = 1;
            Block& into = record.whole(67) == ON_PAPER ? *m_result.drawing.block(PAPER_SPACE) : block;
            if (record.kind() == "INSERT") {
                m_inserts.add(into, insertOf(record));
                continue;
            }
            std::optional<Geometry> geometry =
                record.kind() == "POLYLINE" ? polylineOf(record) : geometryOf(record);
            if (geometry) {
                into.add(entityOf(record, std::move(*geometry)));
            } else if (!isSilent(record.kind())) {
                ++m_result.skipped[std::string(record.kind())];
            }
        }
    }

    // What draws nothing anyway.
    static bool isSilent(std::string_view kind) {
        return kind == "SEQEND" || kind == "ATTDEF" || kind == "ATTRIB" || kind == "VIEWPORT";
    }

    Entity entityOf(const Record& record, Geometry geometry) {
        Entity entity;
        entity.geometry = std::move(geometry);
        entity.layer = layerOf(record.text(8));
        const int color = record.whole(62, BY_LAYER);
        entity.color = color > 0 && color < BY_LAYER ? static_cast<ColorIndex>(color) : BY_LAYER;
        entity.pattern = patternOf(record.text(6));
        return entity;
    }

    // An insert may be a whole grid of them.
    Insert insertOf(const Record& record) {
        constexpr int MOST_ROWS = 10'000;
        const double angle = record.number(50) * DEGREE, c = std::cos(angle), s = std::sin(angle);
        const HostMatrix3d turned =
            HostMatrix3d::coordSystem(record.point(10), {c, s, 0}, {-s, c, 0}, {0, 0, 1});
        return {.block = decodedText(record.text(2)),
                .layer = layerOf(record.text(8)),
                .scale = {record.number(41, 1.0), record.number(42, 1.0), record.number(43, 1.0)},
                .place = record.plane() * turned,
                .columns = std::clamp(record.whole(70, 1), 1, MOST_ROWS),
                .rows = std::clamp(record.whole(71, 1), 1, MOST_ROWS),
                .columnStep = record.number(44),
                .rowStep = record.number(45)};
    }

    static LinePattern patternOf(std::string_view name) {
        if (name.starts_with("DASHDOT") || name.starts_with("CENTER")) return LinePattern::dashDot;
        if (name.starts_with("DASH") || name.starts_with("HIDDEN")) return LinePattern::dashed;
        return name.starts_with("DOT") ? LinePattern::dotted : LinePattern::continuous;
    }

    // A polyline with its vertices in records of their own; a mesh of faces has the vertices first, then the
    // faces.
    Geometry polylineOf(const Record& head) {
        constexpr int CLOSED = 1, IS_3D = 8, IS_GRID = 16, IS_FACES = 64, VERTEX_OF_MESH = 64,
                      VERTEX_IS_FACE = 128;
        const int flags = head.whole(70);
        const HostMatrix3d plane = flags & (IS_3D | IS_GRID | IS_FACES) ? HostMatrix3d() : head.plane();
        Polyline polyline{.closed = (flags & CLOSED) != 0, .normal = head.normal()};
        FaceMesh mesh;
        while (group().is(0, "VERTEX")) {
            const Record vertex(m_groups);
            const int kind = vertex.whole(70);
            if ((kind & VERTEX_IS_FACE) && !(kind & VERTEX_OF_MESH)) {
                addFace(mesh, vertex);
            } else {
                const HostPoint3d point = plane * vertex.point(10);
                mesh.vertices.push_back(point);
                polyline.vertices.push_back({point, vertex.number(42)});
            }
        }
        if (group().is(0, "SEQEND")) m_groups.next();
        if (flags & IS_GRID) addGrid(mesh, head);
        if (!(flags & (IS_FACES | IS_GRID))) return polyline;
        return mesh;
    }

    static void addFace(FaceMesh& mesh, const Record& face) {
        std::array<uint32_t, 4> corners{};
        uint32_t count = 0;
        for (int code = 71; code <= 74; ++code) {
            const int corner = std::abs(face.whole(code));
            if (corner == 0) continue;
            if (static_cast<size_t>(corner) > mesh.vertices.size()) {
                throw FileFault(face.line(), "a face has a corner that doesn't exist");
            }
            corners[count++] = static_cast<uint32_t>(corner - 1);
        }
        if (count < 3) return;
        if (count == 3) corners[3] = corners[2];
        mesh.faces.push_back(corners);
    }

    // Vertices in rows; rows and columns may close upon themselves.
    static void addGrid(FaceMesh& mesh, const Record& head) {
        const int64_t rows = head.whole(71), columns = head.whole(72);
        if (rows < 2 || columns < 2 || rows * columns != static_cast<int64_t>(mesh.vertices.size())) return;
        const bool rowsClose = head.whole(70) & 1, columnsClose = head.whole(70) & 32;
        const auto at = [&](int64_t row, int64_t column) {
            return static_cast<uint32_t>(row % rows * columns + column % columns);
        };
        for (int64_t row = 0; row < rows - (rowsClose ? 0 : 1); ++row) {
            for (int64_t column = 0; column < columns - (columnsClose ? 0 : 1); ++column) {
                mesh.faces.push_back(
                    {at(row, column), at(row, column + 1), at(row + 1, column + 1), at(row + 1, column)});
            }
        }
    }

    Groups m_groups;
    DxfDrawing m_result;
    Inserts m_inserts;
    int m_unnamed = 0;
};

}  // namespace

DxfDrawing readDxf(std::string_view text) { return DxfImport(text).read(); }

}  // namespace cad
