#include "host/documents/DrawingCalls.h"

#include <cmath>

#include "host/documents/DrawingWindow.h"

namespace drawing_calls {

using lisp::Call;
using lisp::Error;
using lisp::Value;

namespace {

double numberOf(Call& call, size_t index, Value value) {
    if (!value.isNumber() || !std::isfinite(value.asNumber()))
        call.expected(index, "a list of two or three numbers");
    return value.asNumber();
}

HostPoint3d pointOf(Call& call, size_t index, Value value) {
    std::vector<double> parts;
    for (const Value part : lisp::Elements(value)) parts.push_back(numberOf(call, index, part));
    if (parts.size() != 2 && parts.size() != 3) call.expected(index, "a list of two or three numbers");
    return {parts[0], parts[1], parts.size() == 3 ? parts[2] : 0.0};
}

}  // namespace

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

cad::Block& block() {
    const std::u16string& name = document().pen.block;
    cad::Block* block = drawing().block(name);
    return block ? *block : drawing().modelSpace();
}

HostPoint3d point(Call& call, size_t index) { return pointOf(call, index, call[index]); }

std::vector<HostPoint3d> points(Call& call, size_t index, size_t least) {
    std::vector<HostPoint3d> all;
    for (const Value element : lisp::Elements(call.list(index))) all.push_back(pointOf(call, index, element));
    if (all.size() < least) call.expected(index, "a list of more points");
    return all;
}

double number(Call& call, size_t index) {
    const double value = call.number(index);
    if (!std::isfinite(value)) call.expected(index, "a finite number");
    return value;
}

double positive(Call& call, size_t index) {
    const double value = number(call, index);
    if (!(value > 0.0)) call.expected(index, "a number above 0");
    return value;
}

double numberOr(Call& call, size_t index, double otherwise) {
    return call[index].isNil() ? otherwise : number(call, index);
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

size_t entityNumber(Call& call, size_t index) {
    const int32_t number = call.integer(index);
    if (number < 0 || static_cast<size_t>(number) >= block().entities().size()) {
        call.expected(index, "the number of an entity of the current block");
    }
    return static_cast<size_t>(number);
}

}  // namespace drawing_calls
