// Lisp functions that ask what a drawing has.
#include <algorithm>

#include "host/documents/DrawingCalls.h"
#include "host/lisp/Text.h"
#include "host/services/Texts.h"

namespace drawing_calls {
namespace {

using lisp::Call;
using lisp::Error;
using lisp::Value;

// The pairs of a name and a value that describe an entity.
class Description {
  public:
    explicit Description(Call& call) : m_call(call), m_list(call.lisp) {}

    void add(const char16_t* name, Value value) {
        const lisp::Root kept(m_call.lisp, value);
        m_list.add(m_call.lisp.cons(m_call.lisp.string(name), kept));
    }
    void add(const char16_t* name, const HostPoint3d& p) { add(name, listOf(m_call, p)); }
    void add(const char16_t* name, double number) { add(name, Value::real(number)); }
    void add(const char16_t* name, const std::u16string& text) { add(name, m_call.lisp.string(text)); }
    Value list() const { return m_list.list(); }

    void operator()(const cad::Line& line) {
        add(u"start", line.start);
        add(u"end", line.end);
    }
    void operator()(const cad::Polyline& polyline) {
        lisp::ListBuilder vertices(m_call.lisp);
        for (const cad::Vertex& vertex : polyline.vertices) vertices.add(listOf(m_call, vertex.point));
        add(u"points", vertices.list());
        add(u"closed", Value::truth(polyline.closed));
    }
    void operator()(const cad::Circle& circle) {
        add(u"center", circle.center);
        add(u"radius", circle.radius);
    }
    void operator()(const cad::Arc& arc) {
        add(u"center", arc.center);
        add(u"radius", arc.radius);
        add(u"from", arc.start);
        add(u"to", arc.end);
    }
    void operator()(const cad::Lettering& text) {
        add(u"position", text.position);
        add(u"height", text.height);
        add(u"text", text.contents);
    }
    void operator()(const std::unique_ptr<cad::Table>& table) {
        add(u"position", table->position);
        add(u"rows", whole(table->rowHeights.size()));
        add(u"columns", whole(table->columnWidths.size()));
    }
    void operator()(const cad::Solid& solid) {
        lisp::ListBuilder corners(m_call.lisp);
        for (const HostPoint3d& corner : solid.corners) corners.add(listOf(m_call, corner));
        add(u"points", corners.list());
    }
    void operator()(const cad::FaceMesh& mesh) {
        add(u"vertices", whole(mesh.vertices.size()));
        add(u"faces", whole(mesh.faces.size()));
    }

  private:
    Call& m_call;
    lisp::ListBuilder m_list;
};

Value drawGet(Call& call) {
    const cad::Entity& entity = block().entities()[entityNumber(call, 0)];
    Description description(call);
    description.add(u"kind", lispText(wideFromUtf8(cad::kindOf(entity))));
    description.add(u"layer", drawing().layer(entity.layer).name);
    description.add(u"color", whole(entity.color));
    std::visit(description, entity.geometry);
    return description.list();
}

Value drawCount(Call&) { return whole(block().entities().size()); }

Value drawExtents(Call& call) {
    const HostExtents extents = (call[0].isNil() ? block() : blockNamed(call.text(0))).extents();
    if (extents.isEmpty()) return Value::nil();
    lisp::ListBuilder corners(call.lisp);
    corners.add(listOf(call, extents.min));
    corners.add(listOf(call, extents.max));
    return corners.list();
}

Value drawBlocks(Call& call) {
    lisp::ListBuilder names(call.lisp);
    for (const auto& block : drawing().blocks()) names.add(call.lisp.string(block->name()));
    return names.list();
}

Value drawLayers(Call& call) {
    lisp::ListBuilder names(call.lisp);
    for (const cad::Layer& layer : drawing().layers()) names.add(call.lisp.string(layer.name));
    return names.list();
}

// A variable of the drawing; with a value, sets it.
Value drawVariable(Call& call) {
    const std::u16string name = lisp::upperCase(call.text(0));
    auto& variables = drawing().variables();
    if (call.has(1)) {
        const Value value = call[1];
        if (value.isInteger()) {
            variables[name] = static_cast<int16_t>(std::clamp(value.asInteger(), -32768, 32767));
        } else if (value.isReal()) {
            variables[name] = value.asReal();
        } else if (value.isString()) {
            variables[name] = value.asString();
        } else {
            variables[name] = point(call, 1);
        }
    }
    const auto found = variables.find(name);
    if (found == variables.end()) return Value::nil();
    if (const auto* number = std::get_if<int16_t>(&found->second)) return Value::integer(*number);
    if (const auto* real = std::get_if<double>(&found->second)) return Value::real(*real);
    if (const auto* p = std::get_if<HostPoint3d>(&found->second)) return listOf(call, *p);
    return call.lisp.string(std::get<std::u16string>(found->second));
}

constexpr Row ROWS[] = {
    {u"draw_get", drawGet, 1, 1},         {u"draw_count", drawCount, 0, 0},
    {u"draw_extents", drawExtents, 0, 1}, {u"draw_blocks", drawBlocks, 0, 0},
    {u"draw_layers", drawLayers, 0, 0},   {u"draw_variable", drawVariable, 1, 2},
};

}  // namespace

void defineQuestions(lisp::Interpreter& lisp) { define(lisp, ROWS); }

}  // namespace drawing_calls
