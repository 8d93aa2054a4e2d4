#include "host/database/DrawingFile.h"

#include <charconv>
#include <cmath>

#include "host/lisp/Text.h"

namespace cad {
namespace {

constexpr std::string_view HEAD = "wexdrawing 1";
constexpr std::string_view TAIL = "end-of-drawing";
constexpr const char* PATTERNS[] = {"continuous", "dashed", "dotted", "dashdot"};
// So that a few bytes can't ask for all memory.
constexpr int MOST_TABLE_CELLS = 1'000'000;

// ---------------------------------------------------------------- writing

class Writer {
  public:
    std::string text;

    void word(std::string_view word) {
        text.append(text.empty() || text.back() == '\n' ? "" : " ").append(word);
    }
    void number(double value) {
        char digits[32];
        word({digits, std::to_chars(digits, digits + sizeof digits, value).ptr});
    }
    void point(const HostPoint3d& p) {
        number(p.x);
        number(p.y);
        number(p.z);
    }
    void vector(const HostVector3d& v) { point({v.x, v.y, v.z}); }
    void quoted(std::u16string_view value) {
        std::string quotes = "\"";
        for (const char byte : lisp::toUtf8(value)) {
            if (byte == '\n') {
                quotes += "\\n";
                continue;
            }
            if (byte == '"' || byte == '\\') quotes += '\\';
            quotes += byte;
        }
        word(quotes + '"');
    }
    void endLine() { text += '\n'; }
};

struct WriteGeometry {
    Writer& out;

    void operator()(const Line& line) const {
        out.point(line.start);
        out.point(line.end);
    }
    void operator()(const Polyline& polyline) const {
        out.word(polyline.closed ? "closed" : "open");
        out.vector(polyline.normal);
        for (const Vertex& vertex : polyline.vertices) {
            out.point(vertex.point);
            out.number(vertex.bulge);
        }
    }
    void operator()(const Circle& circle) const {
        out.point(circle.center);
        out.number(circle.radius);
        out.vector(circle.normal);
    }
    void operator()(const Arc& arc) const {
        out.point(arc.center);
        out.number(arc.radius);
        out.number(arc.start);
        out.number(arc.end);
        out.vector(arc.normal);
    }
    void operator()(const Text& text) const {
        out.point(text.position);
        out.number(text.height);
        out.number(text.rotation);
        out.vector(text.normal);
        out.quoted(text.contents);
    }
    void operator()(const MText& text) const {
        out.point(text.position);
        out.number(text.height);
        out.number(text.width);
        out.number(text.rotation);
        out.vector(text.normal);
        out.quoted(text.contents);
    }
    void operator()(const std::unique_ptr<Table>& table) const {
        out.point(table->position);
        out.quoted(styleName(*table));
        out.number(table->textHeight);
        out.number(table->rows());
        out.number(table->columns());
        for (const double height : table->rowHeights) out.number(height);
        for (const double width : table->columnWidths) out.number(width);
        for (const std::u16string& cell : table->cells) out.quoted(cell);
    }
    void operator()(const Solid& solid) const {
        for (const HostPoint3d& corner : solid.corners) out.point(corner);
    }
    void operator()(const FaceMesh& mesh) const {
        out.number(static_cast<double>(mesh.vertices.size()));
        for (const HostPoint3d& vertex : mesh.vertices) out.point(vertex);
        for (const auto& face : mesh.faces) {
            for (const uint32_t corner : face) out.number(corner);
        }
    }

    std::u16string styleName(const Table& table) const {
        const TableStyle* style = drawing.tableStyle(table.style);
        return style ? style->name : u"";
    }
    const Drawing& drawing;
};

void writeVariable(Writer& out, const std::u16string& name, const Variable& value) {
    out.word("variable");
    out.quoted(name);
    if (const auto* whole = std::get_if<int16_t>(&value)) {
        out.word("integer");
        out.number(*whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        out.word("real");
        out.number(*real);
    } else if (const auto* point = std::get_if<HostPoint3d>(&value)) {
        out.word("point");
        out.point(*point);
    } else {
        out.word("text");
        out.quoted(std::get<std::u16string>(value));
    }
    out.endLine();
}

void writeEntity(Writer& out, const Drawing& drawing, const Entity& entity) {
    out.word("  ");
    out.word(kindOf(entity));
    out.number(entity.layer);
    out.number(entity.color);
    out.word(PATTERNS[static_cast<int>(entity.pattern)]);
    out.number(entity.lineWidth);
    std::visit(WriteGeometry{out, drawing}, entity.geometry);
    out.endLine();
}

// ---------------------------------------------------------------- reading

// The words of one line.
class Words {
  public:
    Words(std::string_view line, size_t number) : m_rest(line), m_number(number) {}

    [[noreturn]] void fail(const std::string& why) const { throw FileFault(m_number, why); }

    bool atEnd() {
        while (!m_rest.empty() &&
               (m_rest.front() == ' ' || m_rest.front() == '\t' || m_rest.front() == '\r')) {
            m_rest.remove_prefix(1);
        }
        return m_rest.empty();
    }
    std::string_view word() {
        if (atEnd()) fail("something is missing at its end");
        const std::string_view word = m_rest.substr(0, m_rest.find_first_of(" \t\r"));
        m_rest.remove_prefix(word.size());
        return word;
    }
    double number() {
        const std::string_view digits = word();
        double value = 0.0;
        const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (fault != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value)) {
            fail("\"" + std::string(digits) + "\" is no number");
        }
        return value;
    }
    // A whole number of that range.
    int whole(int least, int most) {
        const double value = number();
        if (value < least || value > most || value != std::floor(value)) {
            fail("a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
                 " is expected");
        }
        return static_cast<int>(value);
    }
    HostPoint3d point() {
        const double x = number(), y = number(), z = number();
        return {x, y, z};
    }
    HostVector3d direction() {
        const HostVector3d vector = point().asVector();
        if (vector.length() <= HOST_TOLERANCE) fail("a direction has no length");
        return vector;
    }
    double positive() {
        const double value = number();
        if (value <= 0.0) fail("a size above 0 is expected");
        return value;
    }
    std::u16string quoted() {
        if (atEnd() || m_rest.front() != '"') fail("a text in quotes is expected");
        std::string bytes;
        size_t at = 1;
        for (; at < m_rest.size() && m_rest[at] != '"'; ++at) {
            if (m_rest[at] != '\\') {
                bytes += m_rest[at];
            } else if (++at < m_rest.size()) {
                bytes += m_rest[at] == 'n' ? '\n' : m_rest[at];
            }
        }
        if (at >= m_rest.size()) fail("the closing quote is missing");
        m_rest.remove_prefix(at + 1);
        return lisp::fromUtf8(bytes);
    }
    // Which of the words comes.
    template <size_t COUNT>
    int oneOf(const char* const (&words)[COUNT]) {
        const std::string_view found = word();
        for (size_t at = 0; at < COUNT; ++at) {
            if (found == words[at]) return static_cast<int>(at);
        }
        fail("\"" + std::string(found) + "\" isn't known here");
    }

  private:
    std::string_view m_rest;
    size_t m_number;
};

Geometry readLine(Words& in, const Drawing&) {
    const HostPoint3d start = in.point();
    return Line{start, in.point()};
}

Geometry readPolyline(Words& in, const Drawing&) {
    Polyline polyline;
    polyline.closed = in.oneOf({"open", "closed"}) == 1;
    polyline.normal = in.direction();
    while (!in.atEnd()) {
        const HostPoint3d point = in.point();
        polyline.vertices.push_back({point, in.number()});
    }
    return polyline;
}

Geometry readCircle(Words& in, const Drawing&) {
    const HostPoint3d center = in.point();
    const double radius = in.positive();
    return Circle{center, radius, in.direction()};
}

Geometry readArc(Words& in, const Drawing&) {
    const HostPoint3d center = in.point();
    const double radius = in.positive(), start = in.number(), end = in.number();
    return Arc{center, radius, start, end, in.direction()};
}

Geometry readText(Words& in, const Drawing&) {
    const HostPoint3d position = in.point();
    const double height = in.positive(), rotation = in.number();
    const HostVector3d normal = in.direction();
    return Text{position, height, rotation, normal, in.quoted()};
}

Geometry readMText(Words& in, const Drawing&) {
    const HostPoint3d position = in.point();
    const double height = in.positive(), width = in.number(), rotation = in.number();
    const HostVector3d normal = in.direction();
    return MText{position, height, width, rotation, normal, in.quoted()};
}

Geometry readTable(Words& in, const Drawing& drawing) {
    auto table = std::make_unique<Table>();
    table->position = in.point();
    const TableStyle* style = drawing.tableStyle(in.quoted());
    table->style = style ? style->id : 0;
    table->textHeight = in.positive();
    const int rows = in.whole(0, MOST_TABLE_CELLS);
    const int columns = in.whole(0, MOST_TABLE_CELLS);
    // Each size and each text takes two bytes of the line at least, so the line bounds what is read.
    for (int row = 0; row < rows; ++row) table->rowHeights.push_back(in.positive());
    for (int column = 0; column < columns; ++column) table->columnWidths.push_back(in.positive());
    for (int64_t cell = 0; cell < int64_t{rows} * columns; ++cell) table->cells.push_back(in.quoted());
    return table;
}

Geometry readSolid(Words& in, const Drawing&) {
    Solid solid;
    for (HostPoint3d& corner : solid.corners) corner = in.point();
    return solid;
}

Geometry readMesh(Words& in, const Drawing&) {
    FaceMesh mesh;
    const int vertices = in.whole(0, 100'000'000);
    for (int vertex = 0; vertex < vertices; ++vertex) mesh.vertices.push_back(in.point());
    while (!in.atEnd()) {
        std::array<uint32_t, 4> face;
        for (uint32_t& corner : face) corner = static_cast<uint32_t>(in.whole(0, vertices - 1));
        mesh.faces.push_back(face);
    }
    return mesh;
}

class DrawingReader {
  public:
    explicit DrawingReader(std::string_view text) : m_rest(text) {}

    Drawing read() {
        if (!nextLine() || m_line != HEAD) throw FileFault(1, "this is no drawing file");
        for (;;) {
            if (!nextLine()) throw FileFault(m_number, "the file ends in the middle of the drawing");
            if (m_line == TAIL) return std::move(m_drawing);
            Words words(m_line, m_number);
            if (words.atEnd()) continue;
            readThing(words);
            if (!words.atEnd()) words.fail("something is left over at its end");
        }
    }

  private:
    bool nextLine() {
        if (m_rest.empty()) return false;
        ++m_number;
        const size_t length = m_rest.find('\n');
        m_line = m_rest.substr(0, length);
        m_rest.remove_prefix(length == std::string_view::npos ? m_rest.size() : length + 1);
        if (m_line.ends_with('\r')) m_line.remove_suffix(1);
        return true;
    }

    void readThing(Words& words) {
        static constexpr const char* THINGS[] = {"layer", "tablestyle", "variable", "view", "block",
                                                 "LINE",  "POLYLINE",   "CIRCLE",   "ARC",  "TEXT",
                                                 "MTEXT", "TABLE",      "SOLID",    "MESH"};
        using Read = void (DrawingReader::*)(Words&);
        static constexpr Read READERS[] = {&DrawingReader::readLayer, &DrawingReader::readTableStyle,
                                           &DrawingReader::readVariable, &DrawingReader::readView,
                                           &DrawingReader::readBlock};
        using ReadGeometry = Geometry (*)(Words&, const Drawing&);
        static constexpr ReadGeometry GEOMETRIES[] = {readLine,  readPolyline, readCircle, readArc, readText,
                                                      readMText, readTable,    readSolid,  readMesh};
        static_assert(std::size(THINGS) == std::size(READERS) + std::size(GEOMETRIES));
        const auto thing = static_cast<size_t>(words.oneOf(THINGS));
        if (thing < std::size(READERS)) return (this->*READERS[thing])(words);
        if (!m_block) words.fail("an entity needs a block before it");
        Entity entity;
        entity.layer = static_cast<uint32_t>(words.whole(0, static_cast<int>(m_drawing.layers().size()) - 1));
        entity.color = static_cast<ColorIndex>(words.whole(0, BY_LAYER));
        entity.pattern = static_cast<LinePattern>(words.oneOf(PATTERNS));
        entity.lineWidth = static_cast<float>(words.number());
        entity.geometry = GEOMETRIES[thing - std::size(READERS)](words, m_drawing);
        m_block->add(std::move(entity));
    }

    void readLayer(Words& words) {
        Layer& layer = m_drawing.layer(m_drawing.layerNamed(words.quoted()));
        layer.color = static_cast<ColorIndex>(words.whole(0, 255));
        layer.visible = words.oneOf({"off", "on"}) == 1;
    }

    void readTableStyle(Words& words) {
        TableStyle style{.name = words.quoted()};
        style.textHeight = words.positive();
        style.rowHeight = words.positive();
        style.columnWidth = words.positive();
        m_drawing.addTableStyle(std::move(style));
    }

    void readView(Words& words) {
        ViewportState& view = m_drawing.viewport();
        view.width = words.positive();
        view.height = words.positive();
        view.target = words.point();
        view.direction = words.direction();
        view.twist = words.number();
    }

    void readBlock(Words& words) {
        const std::u16string name = words.quoted();
        m_block = m_drawing.block(name);
        if (!m_block) {
            if (name.empty()) words.fail("a block needs a name");
            m_block = &m_drawing.addBlock(name);
        }
        m_block->origin = words.point();
    }

    void readVariable(Words& words) {
        const std::u16string name = lisp::upperCase(words.quoted());
        switch (words.oneOf({"integer", "real", "point", "text"})) {
            case 0:
                m_drawing.variables()[name] = static_cast<int16_t>(words.whole(INT16_MIN, INT16_MAX));
                break;
            case 1:
                m_drawing.variables()[name] = words.number();
                break;
            case 2:
                m_drawing.variables()[name] = words.point();
                break;
            default:
                m_drawing.variables()[name] = words.quoted();
        }
    }

    std::string_view m_rest;
    std::string_view m_line;
    size_t m_number = 0;
    Drawing m_drawing;
    Block* m_block = nullptr;
};

}  // namespace

std::string drawingText(const Drawing& drawing) {
    Writer out;
    out.text = std::string(HEAD) + '\n';
    for (const Layer& layer : drawing.layers()) {
        out.word("layer");
        out.quoted(layer.name);
        out.number(layer.color);
        out.word(layer.visible ? "on" : "off");
        out.endLine();
    }
    for (const TableStyle& style : drawing.tableStyles()) {
        out.word("tablestyle");
        out.quoted(style.name);
        for (const double size : {style.textHeight, style.rowHeight, style.columnWidth}) out.number(size);
        out.endLine();
    }
    for (const auto& [name, value] : drawing.variables()) writeVariable(out, name, value);
    const ViewportState& view = drawing.viewport();
    out.word("view");
    out.number(view.width);
    out.number(view.height);
    out.point(view.target);
    out.vector(view.direction);
    out.number(view.twist);
    out.endLine();
    for (const auto& block : drawing.blocks()) {
        out.word("block");
        out.quoted(block->name());
        out.point(block->origin);
        out.endLine();
        for (const Entity& entity : block->entities()) writeEntity(out, drawing, entity);
    }
    return out.text.append(TAIL) + '\n';
}

Drawing drawingOf(std::string_view text) { return DrawingReader(text).read(); }

}  // namespace cad
