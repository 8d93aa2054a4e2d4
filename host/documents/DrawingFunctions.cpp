#include "host/documents/DrawingFunctions.h"

#include <algorithm>
#include <stdexcept>

#include "host/database/DrawingFile.h"
#include "host/documents/Database.h"
#include "host/documents/Documents.h"
#include "host/documents/DrawingWindow.h"
#include "host/lisp/Text.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

using lisp::Call;
using lisp::Error;
using lisp::Value;

constexpr int MOST_TABLE_CELLS = 1'000'000;
constexpr const char16_t* PATTERN_NAMES[] = {u"continuous", u"dashed", u"dotted", u"dashdot"};

HostDocument& document() {
    HostDocument* current = documents().current();
    if (!current) throw Error(u"no document is open");
    return *current;
}

cad::Drawing& drawing() { return document().database.drawing(); }

void changed() {
    if (DrawingWindow* window = DrawingWindow::current()) window->drawingChanged();
}

cad::Block& blockNamed(const std::u16string& name) {
    cad::Block* block = drawing().block(name);
    if (!block) throw Error(u"there is no block \"" + name + u"\"");
    return *block;
}

// The block in which things are made and asked.
cad::Block& block() {
    const std::u16string& name = document().pen.block;
    cad::Block* block = drawing().block(name);
    return block ? *block : drawing().modelSpace();
}

// ---------------------------------------------------------------- arguments and results

double numberOf(Call& call, size_t index, Value value) {
    if (!value.isNumber()) call.expected(index, "a list of two or three numbers");
    return value.asNumber();
}

HostPoint3d pointOf(Call& call, size_t index, Value value) {
    std::vector<double> parts;
    for (const Value part : lisp::Elements(value)) parts.push_back(numberOf(call, index, part));
    if (parts.size() != 2 && parts.size() != 3) call.expected(index, "a list of two or three numbers");
    return {parts[0], parts[1], parts.size() == 3 ? parts[2] : 0.0};
}

HostPoint3d point(Call& call, size_t index) { return pointOf(call, index, call[index]); }

std::vector<HostPoint3d> points(Call& call, size_t index, size_t least) {
    std::vector<HostPoint3d> all;
    for (const Value element : lisp::Elements(call.list(index))) all.push_back(pointOf(call, index, element));
    if (all.size() < least) call.expected(index, "a list of more points");
    return all;
}

double positive(Call& call, size_t index) {
    const double value = call.number(index);
    if (!(value > 0.0)) call.expected(index, "a number above 0");
    return value;
}

double numberOr(Call& call, size_t index, double otherwise) {
    return call[index].isNil() ? otherwise : call.number(index);
}

HostVector3d directionOr(Call& call, size_t index, const HostVector3d& otherwise) {
    if (call[index].isNil()) return otherwise;
    const HostVector3d direction = point(call, index).asVector();
    if (direction.length() <= HOST_TOLERANCE) call.expected(index, "a direction that has a length");
    return direction;
}

Value listOf(Call& call, const HostPoint3d& p) {
    return call.lisp.list({Value::real(p.x), Value::real(p.y), Value::real(p.z)});
}

Value whole(size_t number) { return Value::integer(static_cast<int32_t>(number)); }

size_t entityNumber(Call& call, size_t index) {
    const int32_t number = call.integer(index);
    if (number < 0 || static_cast<size_t>(number) >= block().entities().size()) {
        call.expected(index, "the number of an entity of the current block");
    }
    return static_cast<size_t>(number);
}

// ---------------------------------------------------------------- making

// With the layer, the colour, the pattern and the width that were set last. Gives the entity's number in its
// block.
Value make(cad::Geometry geometry) {
    const DrawingPen& pen = document().pen;
    cad::Entity entity;
    entity.geometry = std::move(geometry);
    entity.layer = std::min(pen.layer, static_cast<uint32_t>(drawing().layers().size() - 1));
    entity.color = pen.color;
    entity.pattern = pen.pattern;
    entity.lineWidth = pen.width;
    cad::Block& into = block();
    into.add(std::move(entity));
    changed();
    return whole(into.entities().size() - 1);
}

Value drawLine(Call& call) {
    const HostPoint3d start = point(call, 0);
    return make(cad::Line{start, point(call, 1)});
}

Value drawPolyline(Call& call) {
    cad::Polyline polyline{.closed = !call[1].isNil()};
    for (const HostPoint3d& p : points(call, 0, 2)) polyline.vertices.push_back({p});
    return make(std::move(polyline));
}

Value drawCircle(Call& call) {
    const HostPoint3d center = point(call, 0);
    const double radius = positive(call, 1);
    return make(cad::Circle{center, radius, directionOr(call, 2, {0, 0, 1})});
}

Value drawArc(Call& call) {
    const HostPoint3d center = point(call, 0);
    const double radius = positive(call, 1), start = call.number(2), end = call.number(3);
    return make(cad::Arc{center, radius, start, end, directionOr(call, 4, {0, 0, 1})});
}

Value drawText(Call& call) {
    const HostPoint3d position = point(call, 0);
    const double height = positive(call, 1);
    return make(
        cad::Text{position, height, numberOr(call, 3, 0.0), directionOr(call, 4, {0, 0, 1}), call.text(2)});
}

Value drawMText(Call& call) {
    const HostPoint3d position = point(call, 0);
    const double height = positive(call, 1);
    return make(cad::MText{position, height, numberOr(call, 3, 0.0), 0.0, {0, 0, 1}, call.text(2)});
}

Value drawSolid(Call& call) {
    const HostPoint3d a = point(call, 0), b = point(call, 1), c = point(call, 2);
    return make(cad::Solid{{a, b, c, call[3].isNil() ? c : point(call, 3)}});
}

Value drawMesh(Call& call) {
    cad::FaceMesh mesh{.vertices = points(call, 0, 3)};
    for (const Value face : lisp::Elements(call.list(1))) {
        std::vector<uint32_t> corners;
        for (const Value corner : lisp::Elements(face)) {
            const bool known = corner.isInteger() && corner.asInteger() >= 0 &&
                               static_cast<size_t>(corner.asInteger()) < mesh.vertices.size();
            if (!known) call.expected(1, "a list of faces, each three or four numbers of points from 0");
            corners.push_back(static_cast<uint32_t>(corner.asInteger()));
        }
        if (corners.size() == 3) corners.push_back(corners.back());
        if (corners.size() != 4)
            call.expected(1, "a list of faces, each three or four numbers of points from 0");
        mesh.faces.push_back({corners[0], corners[1], corners[2], corners[3]});
    }
    return make(std::move(mesh));
}

Value drawTable(Call& call) {
    auto table = std::make_unique<cad::Table>();
    table->position = point(call, 0);
    const int32_t rows = call.integer(1), columns = call.integer(2);
    if (rows < 1 || columns < 1 || int64_t{rows} * columns > MOST_TABLE_CELLS)
        call.expected(1, "a million cells at most");
    table->rowHeights.resize(static_cast<size_t>(rows));
    table->columnWidths.resize(static_cast<size_t>(columns));
    table->cells.resize(static_cast<size_t>(rows) * static_cast<size_t>(columns));
    const std::u16string style = call.has(3) ? call.text(3) : u"Standard";
    const cad::TableStyle* known = drawing().tableStyle(style);
    if (!known) throw Error(u"there is no table style \"" + style + u"\"");
    table->style = known->id;
    drawing().layOut(*table);
    return make(std::move(table));
}

// The text of a cell; with a text, sets it.
Value drawCell(Call& call) {
    const size_t number = entityNumber(call, 0);
    const auto* table = std::get_if<std::unique_ptr<cad::Table>>(&block().entities()[number].geometry);
    if (!table) call.expected(0, "the number of a table");
    std::u16string* cell = (*table)->cell(call.integer(1), call.integer(2));
    if (!cell) throw Error(u"the table has no such cell");
    if (call.has(3)) {
        *cell = call.text(3);
        block().change(number);
        changed();
    }
    return call.lisp.string(*cell);
}

// ---------------------------------------------------------------- what is drawn with, and where

Value drawLayer(Call& call) {
    const uint32_t number = drawing().layerNamed(call.text(0));
    if (!call[1].isNil())
        drawing().layer(number).color = static_cast<cad::ColorIndex>(std::clamp(call.integer(1), 1, 255));
    document().pen.layer = number;
    changed();
    return Value::truth();
}

Value drawShowLayer(Call& call) {
    drawing().layer(drawing().layerNamed(call.text(0))).visible = !call[1].isNil();
    // What was made from the blocks holds what layers showed.
    for (const auto& block : drawing().blocks()) block->touch();
    changed();
    return Value::truth();
}

Value drawColor(Call& call) {
    document().pen.color =
        call[0].isNil() ? cad::BY_LAYER : static_cast<cad::ColorIndex>(std::clamp(call.integer(0), 1, 255));
    return Value::truth();
}

Value drawWidth(Call& call) {
    document().pen.width = static_cast<float>(positive(call, 0));
    return Value::truth();
}

Value drawPattern(Call& call) {
    for (size_t at = 0; at < std::size(PATTERN_NAMES); ++at) {
        if (call.text(0) != PATTERN_NAMES[at]) continue;
        document().pen.pattern = static_cast<cad::LinePattern>(at);
        return Value::truth();
    }
    call.expected(0, "\"continuous\", \"dashed\", \"dotted\" or \"dashdot\"");
}

Value drawBlock(Call& call) {
    const std::u16string name = call[0].isNil() ? cad::MODEL_SPACE : call.text(0);
    if (name.empty()) call.expected(0, "a name");
    if (!drawing().block(name)) drawing().addBlock(name);
    document().pen.block = name;
    return call.lisp.string(name);
}

Value drawTableStyle(Call& call) {
    cad::TableStyle style{.name = call.text(0)};
    style.textHeight = positive(call, 1);
    style.rowHeight = positive(call, 2);
    style.columnWidth = positive(call, 3);
    drawing().addTableStyle(std::move(style));
    return Value::truth();
}

// ---------------------------------------------------------------- asking

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
    void operator()(const cad::Text& text) {
        add(u"position", text.position);
        add(u"height", text.height);
        add(u"text", text.contents);
    }
    void operator()(const cad::MText& text) {
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

// One entity, or all of the current block.
Value drawErase(Call& call) {
    if (call.has(0)) {
        block().remove(entityNumber(call, 0));
    } else {
        block().clear();
    }
    changed();
    return Value::truth();
}

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

// ---------------------------------------------------------------- files and the screen

[[noreturn]] void failOnFile(const std::u16string& what, const std::u16string& name,
                             const std::exception& fault) {
    throw Error(u"can't " + what + u" \"" + name + u"\": " + lispText(wideFromUtf8(fault.what())));
}

std::wstring pathOf(Call& call) { return call.lisp.files().resolve(call.text(0)).wstring(); }

Value drawOpen(Call& call) {
    try {
        const std::string left = document().database.read(pathOf(call), HOST_SHARE_NONE);
        if (!left.empty())
            host().console().print(wideText(call.text(0)) + L": " + wideFromUtf8(left) + L"\n");
    } catch (const std::exception& fault) {
        failOnFile(u"read", call.text(0), fault);
    }
    document().pen = {};
    changed();
    return Value::truth();
}

Value drawSave(Call& call) {
    try {
        writeWhole(pathOf(call), cad::drawingText(drawing()));
    } catch (const std::exception& fault) {
        failOnFile(u"write", call.text(0), fault);
    }
    return Value::truth();
}

Value drawNew(Call&) {
    document().database.setDrawing({});
    document().pen = {};
    changed();
    return Value::truth();
}

DrawingWindow& window() {
    host().mainFrame();
    return *DrawingWindow::current();
}

Value drawOrbit(Call& call) {
    const double x = call.number(0);
    window().orbit(x, call.number(1));
    return Value::truth();
}

Value drawZoom(Call& call) {
    window().zoom(positive(call, 0));
    return Value::truth();
}

Value drawPan(Call& call) {
    const double x = call.number(0);
    window().move(x, call.number(1));
    return Value::truth();
}

Value drawShow(Call& call) {
    const cad::Block& shown = call[0].isNil() ? drawing().modelSpace() : blockNamed(call.text(0));
    const HostVector3d direction = directionOr(call, 1, {0, 0, 1});
    window().show(shown, direction);
    return Value::truth();
}

}  // namespace

void defineDrawingFunctions(lisp::Interpreter& lisp) {
    struct Row {
        const char16_t* name;
        lisp::NativeFunction function;
        int minimum, maximum;
    };
    static constexpr Row rows[] = {
        {u"draw_line", drawLine, 2, 2},
        {u"draw_polyline", drawPolyline, 1, 2},
        {u"draw_circle", drawCircle, 2, 3},
        {u"draw_arc", drawArc, 4, 5},
        {u"draw_text", drawText, 3, 5},
        {u"draw_mtext", drawMText, 3, 4},
        {u"draw_solid", drawSolid, 3, 4},
        {u"draw_mesh", drawMesh, 2, 2},
        {u"draw_table", drawTable, 3, 4},
        {u"draw_cell", drawCell, 3, 4},
        {u"draw_layer", drawLayer, 1, 2},
        {u"draw_show_layer", drawShowLayer, 2, 2},
        {u"draw_color", drawColor, 1, 1},
        {u"draw_width", drawWidth, 1, 1},
        {u"draw_pattern", drawPattern, 1, 1},
        {u"draw_block", drawBlock, 1, 1},
        {u"draw_tablestyle", drawTableStyle, 4, 4},
        {u"draw_get", drawGet, 1, 1},
        {u"draw_count", drawCount, 0, 0},
        {u"draw_erase", drawErase, 0, 1},
        {u"draw_extents", drawExtents, 0, 1},
        {u"draw_blocks", drawBlocks, 0, 0},
        {u"draw_layers", drawLayers, 0, 0},
        {u"draw_variable", drawVariable, 1, 2},
        {u"draw_open", drawOpen, 1, 1},
        {u"draw_save", drawSave, 1, 1},
        {u"draw_new", drawNew, 0, 0},
        {u"draw_show", drawShow, 0, 2},
        {u"draw_orbit", drawOrbit, 2, 2},
        {u"draw_zoom", drawZoom, 1, 1},
        {u"draw_pan", drawPan, 2, 2},
    };
    for (const Row& row : rows) lisp.defineNative(row.name, row.function, nullptr, row.minimum, row.maximum);
}
