#include <charconv>
#include <cmath>

#include "host/database/DrawingFields.h"
#include "host/database/DrawingFile.h"
#include "host/lisp/Text.h"

namespace cad {
namespace {

// So that a few bytes can't ask for all memory.
constexpr int MOST_TABLE_CELLS = 1'000'000;

// The words of one line.
class Words {
  public:
    template <class Kind>
    using Field = Kind&;

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
    void number(double& value) { value = number(); }
    void positive(double& value) { value = positive(); }
    void point(HostPoint3d& value) { value = point(); }
    void direction(HostVector3d& value) { value = direction(); }
    void quoted(std::u16string& value) { value = quoted(); }
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

template <class Simple>
Geometry readPlain(Words& in, const Drawing&) {
    Simple geometry;
    fields(in, geometry);
    return geometry;
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
        if (!nextLine() || m_line != DRAWING_HEAD) throw FileFault(1, "this is no drawing file");
        for (;;) {
            if (!nextLine()) throw FileFault(m_number, "the file ends in the middle of the drawing");
            if (m_line == DRAWING_TAIL) return std::move(m_drawing);
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
        static constexpr ReadGeometry GEOMETRIES[] = {readPlain<Line>, readPolyline,     readPlain<Circle>,
                                                      readPlain<Arc>,  readPlain<Text>,  readPlain<MText>,
                                                      readTable,       readPlain<Solid>, readMesh};
        static_assert(std::size(THINGS) == std::size(READERS) + std::size(GEOMETRIES));
        const auto thing = static_cast<size_t>(words.oneOf(THINGS));
        if (thing < std::size(READERS)) return (this->*READERS[thing])(words);
        if (!m_block) words.fail("an entity needs a block before it");
        Entity entity;
        entity.layer = static_cast<uint32_t>(words.whole(0, static_cast<int>(m_drawing.layers().size()) - 1));
        entity.color = static_cast<ColorIndex>(words.whole(0, BY_LAYER));
        entity.pattern = static_cast<LinePattern>(words.oneOf(PATTERN_WORDS));
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

Drawing drawingOf(std::string_view text) { return DrawingReader(text).read(); }

}  // namespace cad
