#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "host/database/DrawingFields.h"
#include "host/database/DrawingFile.h"
#include "host/lisp/Text.h"

namespace cad {
namespace {

class Writer {
  public:
    std::string text;

    template <class Kind>
    using Field = const Kind&;

    void word(std::string_view word) {
        text.append(text.empty() || text.back() == '\n' ? "" : " ").append(word);
    }
    // Numbers that overflowed are written too, since a file must be read back whole.
    void number(double value) {
        constexpr double MOST = std::numeric_limits<double>::max();
        value = std::isnan(value) ? 0.0 : std::clamp(value, -MOST, MOST);
        char digits[32];
        word({digits, std::to_chars(digits, digits + sizeof digits, value).ptr});
    }
    void point(const HostPoint3d& p) {
        number(p.x);
        number(p.y);
        number(p.z);
    }
    void direction(const HostVector3d& v) { point({v.x, v.y, v.z}); }
    void positive(double value) { number(value); }
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

    template <class Simple>
    void operator()(const Simple& geometry) const {
        fields(out, geometry);
    }
    void operator()(const Polyline& polyline) const {
        out.word(polyline.closed ? "closed" : "open");
        out.direction(polyline.normal);
        for (const Vertex& vertex : polyline.vertices) {
            out.point(vertex.point);
            out.number(vertex.bulge);
        }
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
    out.word(PATTERN_WORDS[static_cast<int>(entity.pattern)]);
    out.number(entity.lineWidth);
    std::visit(WriteGeometry{out, drawing}, entity.geometry);
    out.endLine();
}

}  // namespace

std::string drawingText(const Drawing& drawing) {
    Writer out;
    out.text = std::string(DRAWING_HEAD) + '\n';
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
    out.direction(view.direction);
    out.number(view.twist);
    out.endLine();
    for (const auto& block : drawing.blocks()) {
        out.word("block");
        out.quoted(block->name());
        out.point(block->origin);
        out.endLine();
        for (const Entity& entity : block->entities()) writeEntity(out, drawing, entity);
    }
    return out.text.append(DRAWING_TAIL) + '\n';
}

}  // namespace cad
