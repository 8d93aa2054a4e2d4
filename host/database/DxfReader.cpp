#include "host/database/DxfReader.h"

#include <charconv>
#include <cmath>
#include <numbers>
#include <optional>

#include "host/database/DrawingFile.h"
#include "host/lisp/Text.h"

namespace cad {
namespace {

constexpr double DEGREE = std::numbers::pi / 180.0;
constexpr int MOST_TABLE_CELLS = 1'000'000;

std::string_view trimmed(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// A group of the file.
struct Group {
    int code = 0;
    std::string_view value;
    size_t line = 0;

    bool is(int wanted, std::string_view text) const { return code == wanted && value == text; }
    double number() const {
        double number = 0.0;
        std::string_view digits = value;
        if (digits.starts_with('+')) digits.remove_prefix(1);
        const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (fault != std::errc() || end != digits.data() + digits.size() || !std::isfinite(number)) {
            throw FileFault(line, "\"" + std::string(value) + "\" is no number");
        }
        return number;
    }
    int whole() const {
        const double value = number();
        return std::fabs(value) < 2e9 ? static_cast<int>(value) : 0;
    }
};

class Groups {
  public:
    explicit Groups(std::string_view text) : m_rest(text) { next(); }

    const Group& group() const { return m_group; }
    void next() {
        const std::string_view code = trimmed(line());
        m_group.line = m_number + 1;
        const auto [end, fault] = std::from_chars(code.data(), code.data() + code.size(), m_group.code);
        if (fault != std::errc() || end != code.data() + code.size()) {
            throw FileFault(m_number,
                            "a group code is expected, not \"" + std::string(code.substr(0, 40)) + "\"");
        }
        // Blanks at the begin of a text are its own.
        m_group.value = line();
        if (m_group.code >= 10 || m_group.code == 0) m_group.value = trimmed(m_group.value);
    }

  private:
    std::string_view line() {
        if (m_rest.empty()) throw FileFault(m_number, "the file ends before its EOF");
        ++m_number;
        const size_t length = m_rest.find('\n');
        std::string_view line = m_rest.substr(0, length);
        m_rest.remove_prefix(length == std::string_view::npos ? m_rest.size() : length + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        return line;
    }

    std::string_view m_rest;
    size_t m_number = 0;
    Group m_group;
};

// The groups of one entity, up to the next 0.
class Record {
  public:
    explicit Record(Groups& groups) : m_kind(groups.group().value), m_line(groups.group().line) {
        for (groups.next(); groups.group().code != 0; groups.next()) m_groups.push_back(groups.group());
    }

    std::string_view kind() const { return m_kind; }
    size_t line() const { return m_line; }
    const std::vector<Group>& groups() const { return m_groups; }
    const Group* find(int code) const {
        for (const Group& group : m_groups) {
            if (group.code == code) return &group;
        }
        return nullptr;
    }
    bool has(int code) const { return find(code); }
    double number(int code, double otherwise = 0.0) const {
        const Group* group = find(code);
        return group ? group->number() : otherwise;
    }
    int whole(int code, int otherwise = 0) const {
        const Group* group = find(code);
        return group ? group->whole() : otherwise;
    }
    std::string_view text(int code) const {
        const Group* group = find(code);
        return group ? group->value : std::string_view();
    }
    // Codes `code`, 10 more and 20 more.
    HostPoint3d point(int code) const { return {number(code), number(code + 10), number(code + 20)}; }
    HostVector3d normal() const {
        const HostVector3d given{number(210, 0.0), number(220, 0.0), number(230, has(210) ? 0.0 : 1.0)};
        return given.length() <= HOST_TOLERANCE ? HostVector3d{0, 0, 1} : given;
    }
    // From the coordinates of the entity's own plane to the world's.
    HostMatrix3d plane() const { return planeOf({}, normal()); }
    double positive(int code, double otherwise = 1.0) const {
        const double value = number(code, otherwise);
        return value > 0.0 ? value : otherwise;
    }

  private:
    std::string_view m_kind;
    size_t m_line;
    std::vector<Group> m_groups;
};

// Letters by number, "\U+00B0", and the signs for degree, plus-minus and diameter.
std::u16string decoded(std::string_view bytes) {
    const std::u16string raw = lisp::fromUtf8(bytes);
    std::u16string text;
    for (size_t at = 0; at < raw.size(); ++at) {
        const std::u16string_view rest = std::u16string_view(raw).substr(at);
        if (rest.starts_with(u"\\U+") && rest.size() >= 7) {
            const std::string digits = lisp::toUtf8(rest.substr(3, 4));
            uint16_t letter = 0;
            const auto [end, fault] =
                std::from_chars(digits.data(), digits.data() + digits.size(), letter, 16);
            if (fault == std::errc() && end == digits.data() + 4) {
                text += static_cast<char16_t>(letter);
                at += 6;
                continue;
            }
        } else if (rest.starts_with(u"%%") && rest.size() >= 3) {
            const char16_t sign = lisp::lowerCase(rest[2]);
            const char16_t letter = sign == u'd'   ? u'\u00B0'
                                    : sign == u'p' ? u'\u00B1'
                                    : sign == u'c' ? u'\u2300'
                                                   : u'\0';
            if (letter) {
                text += letter;
                at += 2;
                continue;
            }
        }
        text += raw[at];
    }
    return text;
}

// Formatting of multi-line text goes: braces, and codes up to their semicolon. Line breaks and escaped signs
// stay.
std::u16string withoutFormats(const std::u16string& raw) {
    std::u16string text;
    for (size_t at = 0; at < raw.size(); ++at) {
        if (raw[at] == u'{' || raw[at] == u'}') continue;
        if (raw[at] != u'\\' || at + 1 == raw.size()) {
            text += raw[at];
            continue;
        }
        const char16_t code = raw[++at];
        if (code == u'P') {
            text += u"\\P";
        } else if (code == u'~') {
            text += u' ';
        } else if (std::u16string_view(u"ACFfHQTWpS").find(code) != std::u16string_view::npos) {
            const size_t end = raw.find(u';', at);
            if (code == u'S' && end != std::u16string::npos) text += raw.substr(at + 1, end - at - 1);
            at = end == std::u16string::npos ? raw.size() : end;
        } else if (std::u16string_view(u"LlOoKk").find(code) == std::u16string_view::npos) {
            text += code;
        }
    }
    return text;
}

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
    return Text{record.plane() * record.point(aligned ? 11 : 10), record.positive(40),
                record.number(50) * DEGREE, record.normal(), decoded(record.text(1))};
}

Geometry multiLineText(const Record& record) {
    std::string bytes;
    for (const Group& group : record.groups()) {
        if (group.code == 3) bytes += group.value;
    }
    bytes += record.text(1);
    MText text{record.point(10),           record.positive(40), std::fmax(0.0, record.number(41)),
               record.number(50) * DEGREE, record.normal(),     withoutFormats(decoded(bytes))};
    if (record.has(11)) text.rotation = std::atan2(record.number(21), record.number(11));
    // The attachment's row: the position is the top, the middle or the bottom of the text.
    const int row = (record.whole(71, 1) - 1) / 3;
    if (row == 1 || row == 2) {
        const double lines = static_cast<double>(linesOf(text).size() - 1) * LINE_SPACING + 1.0;
        const HostVector3d up = textPlane({}, text.normal, text.rotation) * HostVector3d{0, 1, 0};
        text.position = text.position + up * (text.height * lines * row / 2.0);
    }
    return text;
}

Geometry tableOf(const Record& record) {
    auto table = std::make_unique<Table>();
    table->position = record.point(10);
    const int rows = record.whole(91), columns = record.whole(92);
    if (rows < 0 || columns < 0 || int64_t{rows} * columns > MOST_TABLE_CELLS) {
        throw FileFault(record.line(), "a table of this size can't be read");
    }
    for (const Group& group : record.groups()) {
        if (group.code == 141) table->rowHeights.push_back(group.number());
        if (group.code == 142) table->columnWidths.push_back(group.number());
        if (group.code == 140 && group.number() > 0.0) table->textHeight = group.number();
        if ((group.code == 1 || group.code == 302) && table->cells.size() < MOST_TABLE_CELLS) {
            table->cells.push_back(withoutFormats(decoded(group.value)));
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
            const std::u16string name = decoded(record.text(2));
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
        return m_result.drawing.layerNamed(name.empty() ? u"0" : decoded(name));
    }

    void readEntities(Block& block, std::string_view end) {
        while (!at(end)) {
            if (group().code != 0) {
                m_groups.next();
                continue;
            }
            const Record record(m_groups);
            std::optional<Geometry> geometry =
                record.kind() == "POLYLINE" ? polylineOf(record) : geometryOf(record);
            if (!geometry) {
                ++m_result.skipped[std::string(record.kind())];
                continue;
            }
            Entity entity;
            entity.geometry = std::move(*geometry);
            entity.layer = layerOf(record.text(8));
            const int color = record.whole(62, BY_LAYER);
            entity.color = color > 0 && color < BY_LAYER ? static_cast<ColorIndex>(color) : BY_LAYER;
            entity.pattern = patternOf(record.text(6));
            const bool onPaper = record.whole(67) == 1;
            (onPaper ? *m_result.drawing.block(PAPER_SPACE) : block).add(std::move(entity));
        }
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
    int m_unnamed = 0;
};

}  // namespace

DxfDrawing readDxf(std::string_view text) { return DxfImport(text).read(); }

}  // namespace cad
