// What a value is, and whether two are the same.
#include <cmath>

#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"

namespace lisp {

bool isEqual(Machine& machine, Value a, Value b, double fuzz) {
    while (true) {
        machine.step();
        if (a == b) return true;
        if (a.isNumber() && b.isNumber()) return std::abs(a.asNumber() - b.asNumber()) <= fuzz;
        if (a.isString() && b.isString()) return a.asString() == b.asString();
        if (!a.isCons() || !b.isCons() || !isEqual(machine, a.car(), b.car(), fuzz)) return false;
        a = a.cdr();
        b = b.cdr();
    }
}

namespace {

Value isNull(Call& call) { return Value::truth(call[0].isNil()); }
Value isAtom(Call& call) { return Value::truth(!call[0].isCons()); }
Value isList(Call& call) { return Value::truth(call[0].isList()); }
Value isCons(Call& call) { return Value::truth(call[0].isCons()); }
Value isString(Call& call) { return Value::truth(call[0].isString()); }
Value isSymbol(Call& call) { return Value::truth(call[0].isSymbol() || call[0].isTruth()); }
Value isNumber(Call& call) { return Value::truth(call[0].isNumber()); }
Value isInteger(Call& call) { return Value::truth(call[0].isInteger()); }
Value isReal(Call& call) { return Value::truth(call[0].isReal()); }
Value isFunction(Call& call) { return Value::truth(call[0].isFunction()); }
Value areSame(Call& call) { return Value::truth(call[0] == call[1]); }

Value areEqual(Call& call) {
    double fuzz = call.count() > 2 ? call.number(2) : 0;
    return Value::truth(isEqual(call.lisp.machine(), call[0], call[1], fuzz));
}

constexpr Definition FUNCTIONS[] = {
    {u"null", isNull, 1, 1},      {u"not", isNull, 1, 1},           {u"atom", isAtom, 1, 1},
    {u"listp", isList, 1, 1},     {u"consp", isCons, 1, 1},         {u"stringp", isString, 1, 1},
    {u"symbolp", isSymbol, 1, 1}, {u"numberp", isNumber, 1, 1},     {u"integerp", isInteger, 1, 1},
    {u"realp", isReal, 1, 1},     {u"functionp", isFunction, 1, 1}, {u"eq", areSame, 2, 2},
    {u"equal", areEqual, 2, 3},
};

}  // namespace

void definePredicates(Interpreter& lisp) { defineAll(lisp, FUNCTIONS); }

}  // namespace lisp
