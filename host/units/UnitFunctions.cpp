#include "host/units/UnitFunctions.h"

#include "host/units/AngularUnits.h"
#include "host/units/LinearUnits.h"

namespace {

using lisp::Call;
using lisp::Value;

constexpr int DECIMAL = 2;
constexpr int DEGREES = 1;
constexpr int USUAL_PRECISION = -1;

std::wstring wide(const std::u16string& text) { return std::wstring(text.begin(), text.end()); }

Value textOrNil(Call& call, const std::optional<std::wstring>& text) {
    return text ? call.lisp.string(std::u16string(text->begin(), text->end())) : Value::nil();
}

Value numberOrNil(const std::optional<double>& number) {
    return number ? Value::real(*number) : Value::nil();
}

Value distof(Call& call) {
    return numberOrNil(units::distanceFromText(wide(call.text(0)), call.integerOr(1, DECIMAL)));
}

Value rtos(Call& call) {
    return textOrNil(call, units::distanceText(call.number(0), call.integerOr(1, DECIMAL),
                                               call.integerOr(2, USUAL_PRECISION)));
}

Value angtof(Call& call) {
    return numberOrNil(units::angleFromText(wide(call.text(0)), call.integerOr(1, DEGREES)));
}

Value angtos(Call& call) {
    return textOrNil(call, units::angleText(call.number(0), call.integerOr(1, DEGREES),
                                            call.integerOr(2, USUAL_PRECISION)));
}

}  // namespace

void defineUnitFunctions(lisp::Interpreter& lisp) {
    lisp.defineNative(u"distof", &distof, nullptr, 1, 2);
    lisp.defineNative(u"rtos", &rtos, nullptr, 1, 3);
    lisp.defineNative(u"angtof", &angtof, nullptr, 1, 2);
    lisp.defineNative(u"angtos", &angtos, nullptr, 1, 3);
}
