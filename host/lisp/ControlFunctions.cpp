// Evaluation, calls, loading, errors, time.
#include <chrono>

#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Reader.h"

namespace lisp {

namespace {

Value evalForm(Call& call) { return call.lisp.machine().eval(call[0]); }

Value applyFunction(Call& call) {
    Machine& machine = call.lisp.machine();
    Value arguments = call.list(1);
    Function* function = machine.callable(call[0]);
    Value* base = machine.top();
    for (Value argument : Elements(arguments)) machine.push(argument);
    return machine.call(function, base);
}

Value mapcar(Call& call) {
    Machine& machine = call.lisp.machine();
    Function* function = machine.callable(call[0]);
    // It may redefine itself between two calls.
    Root kept(call.lisp, Value::of(function));
    std::vector<Value> rests;
    for (size_t i = 1; i < call.count(); ++i) rests.push_back(call.list(i));
    ListBuilder results(call.lisp);
    while (true) {
        Value* base = machine.top();
        for (Value& rest : rests) {
            if (!rest.isCons()) {
                machine.popTo(base);
                return results.list();
            }
            machine.push(rest.car());
            rest = rest.cdr();
        }
        results.add(machine.call(function, base));
    }
}

Value readForm(Call& call) {
    Value form;
    Reader(call.lisp.machine(), call.text(0), 0).next(form);
    return form;
}

Value load(Call& call) {
    bool found = call.lisp.files().find(call.text(0)).has_value();
    return found || call.count() < 2 ? call.lisp.loadFile(call.text(0)) : call[1];
}

Value set(Call& call) {
    call.symbol(0).asSymbol()->value = call[1];
    return call[1];
}

Value typeOf(Call& call) {
    Value value = call[0];
    if (value.isNil()) return Value::nil();
    const char16_t* name = value.isInteger()            ? u"INT"
                           : value.isReal()             ? u"REAL"
                           : value.isString()           ? u"STR"
                           : value.isCons()             ? u"LIST"
                           : value.isFile()             ? u"FILE"
                           : !value.isFunction()        ? u"SYM"
                           : value.asFunction()->native ? u"SUBR"
                                                        : u"USUBR";
    return call.lisp.symbol(name);
}

Value isBound(Call& call) {
    Value value = call[0];
    if (value.isTruth()) return Value::truth();
    return Value::truth(value.isSymbol() && !value.asSymbol()->value.isNil());
}

Value symbolName(Call& call) {
    if (!call[0].isTruth()) call.symbol(0);
    return call.lisp.string(call[0].symbolName());
}

Value raise(Call& call) {
    std::u16string message = call.text(0);
    throw Error(std::move(message));
}

Value ticks(Call&) {
    auto now = std::chrono::steady_clock::now().time_since_epoch();
    return Value::integer(
        int32_t(std::chrono::duration_cast<std::chrono::milliseconds>(now).count() & 0x7FFFFFFF));
}

constexpr Definition FUNCTIONS[] = {
    {u"eval", evalForm, 1, 1}, {u"apply", applyFunction, 2, 2}, {u"mapcar", mapcar, 2, -1},
    {u"read", readForm, 1, 1}, {u"load", load, 1, 2},           {u"set", set, 2, 2},
    {u"type", typeOf, 1, 1},   {u"boundp", isBound, 1, 1},      {u"symbol-name", symbolName, 1, 1},
    {u"error", raise, 1, 1},   {u"ticks", ticks, 0, 0},
};

}  // namespace

void defineAll(Interpreter& lisp, std::span<const Definition> functions) {
    for (const Definition& entry : functions)
        lisp.defineNative(entry.name, entry.function, nullptr, entry.minimum, entry.maximum);
}

void defineControlFunctions(Interpreter& lisp) { defineAll(lisp, FUNCTIONS); }

}  // namespace lisp
