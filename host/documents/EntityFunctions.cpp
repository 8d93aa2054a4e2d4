// Lisp functions that make entities in the current block, change them and remove them.
#include <algorithm>

#include "host/documents/DrawingCalls.h"

namespace drawing_calls {
namespace {

using lisp::Call;
using lisp::Error;
using lisp::Value;

constexpr int MOST_TABLE_CELLS = 1'000'000;

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
    const double radius = positive(call, 1), start = number(call, 2), end = number(call, 3);
    return make(cad::Arc{center, radius, start, end, directionOr(call, 4, {0, 0, 1})});
}

Value drawText(Call& call) {
    const HostPoint3d position = point(call, 0);
    const double height = positive(call, 1);
    return make(
        cad::Text{{position, height, numberOr(call, 3, 0.0), directionOr(call, 4, {0, 0, 1}), call.text(2)}});
}

Value drawMText(Call& call) {
    const HostPoint3d position = point(call, 0);
    const double height = positive(call, 1);
    return make(cad::MText{{position, height, 0.0, {0, 0, 1}, call.text(2)}, numberOr(call, 3, 0.0)});
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

constexpr Row ROWS[] = {
    {u"draw_line", drawLine, 2, 2},     {u"draw_polyline", drawPolyline, 1, 2},
    {u"draw_circle", drawCircle, 2, 3}, {u"draw_arc", drawArc, 4, 5},
    {u"draw_text", drawText, 3, 5},     {u"draw_mtext", drawMText, 3, 4},
    {u"draw_solid", drawSolid, 3, 4},   {u"draw_mesh", drawMesh, 2, 2},
    {u"draw_table", drawTable, 3, 4},   {u"draw_cell", drawCell, 3, 4},
    {u"draw_erase", drawErase, 0, 1},
};

}  // namespace

void defineEntityFunctions(lisp::Interpreter& lisp) { define(lisp, ROWS); }

}  // namespace drawing_calls
