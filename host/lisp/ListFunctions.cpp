// Making lists and taking them apart.
#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"

namespace lisp {

namespace {

// car, cdr and their combinations: userData is the letters between c and r, done from the right.
Value carCdr(Call& call) {
    std::u16string_view path = static_cast<const char16_t*>(call.userData);
    Value value = call[0];
    for (size_t i = path.size(); i-- > 0;) {
        if (!value.isList()) call.expected(0, path.size() == 1 ? "a list" : "a list nested so deep");
        value = path[i] == u'a' ? value.car() : value.cdr();
    }
    return value;
}

constexpr const char16_t* PATHS[] = {u"a",    u"d",    u"aa",   u"ad",   u"da",   u"dd",   u"aaa",  u"aad",
                                     u"ada",  u"add",  u"daa",  u"dad",  u"dda",  u"ddd",  u"aaaa", u"aaad",
                                     u"aada", u"aadd", u"adaa", u"adad", u"adda", u"addd", u"daaa", u"daad",
                                     u"dada", u"dadd", u"ddaa", u"ddad", u"ddda", u"dddd"};

Value cons(Call& call) { return call.lisp.cons(call[0], call[1]); }
Value list(Call& call) { return call.lisp.list(call.arguments); }

Value append(Call& call) {
    if (call.count() == 0) return Value::nil();
    ListBuilder result(call.lisp);
    for (size_t i = 0; i + 1 < call.count(); ++i)
        for (Value element : Elements(call.list(i))) result.add(element);
    result.finishWith(call.list(call.count() - 1));
    return result.list();
}

Value reverse(Call& call) {
    Value result;
    for (Value element : Elements(call.list(0))) result = call.lisp.cons(element, result);
    return result;
}

// The tail of list argument `index` after `count` elements.
Value tailAfter(Call& call, size_t index, int32_t count) {
    Value rest = call.list(index);
    while (count-- > 0 && rest.isCons()) rest = rest.cdr();
    return rest;
}

int32_t position(Call& call) {
    if (call.integer(0) < 0) call.expected(0, "a position from 0");
    return call.integer(0);
}

Value nth(Call& call) { return tailAfter(call, 1, position(call)).car(); }
Value nthCdr(Call& call) { return tailAfter(call, 1, position(call)); }

Value last(Call& call) {
    Value rest = call.list(0);
    while (rest.cdr().isCons()) rest = rest.cdr();
    return rest.car();
}

Value allButLast(Call& call) {
    ListBuilder result(call.lisp);
    for (Value rest = call.list(0); rest.cdr().isCons(); rest = rest.cdr()) result.add(rest.car());
    return result.list();
}

Value length(Call& call) {
    int32_t count = 0;
    Value rest = call.list(0);
    for (; rest.isCons(); rest = rest.cdr()) ++count;
    if (!rest.isNil()) call.expected(0, "a list that ends in nil");
    return Value::integer(count);
}

Value member(Call& call) {
    Value rest = call.list(1);
    while (rest.isCons() && !isEqual(call.lisp.machine(), call[0], rest.car())) rest = rest.cdr();
    return rest.isCons() ? rest : Value::nil();
}

Value positionOf(Call& call) {
    int32_t index = 0;
    for (Value element : Elements(call.list(1))) {
        if (isEqual(call.lisp.machine(), call[0], element)) return Value::integer(index);
        ++index;
    }
    return Value::nil();
}

Value assoc(Call& call) {
    for (Value entry : Elements(call.list(1)))
        if (entry.isCons() && isEqual(call.lisp.machine(), call[0], entry.car())) return entry;
    return Value::nil();
}

Value substitute(Call& call) {
    ListBuilder result(call.lisp);
    Value rest = call.list(2);
    for (; rest.isCons(); rest = rest.cdr())
        result.add(isEqual(call.lisp.machine(), call[1], rest.car()) ? call[0] : rest.car());
    if (!rest.isNil()) result.finishWith(rest);
    return result.list();
}

Value removeElement(Call& call) {
    ListBuilder result(call.lisp);
    for (Value element : Elements(call.list(1)))
        if (!isEqual(call.lisp.machine(), call[0], element)) result.add(element);
    return result.list();
}

Value unique(Call& call) {
    ListBuilder result(call.lisp);
    auto known = [&](Value element) {
        for (Value kept : Elements(result.list()))
            if (isEqual(call.lisp.machine(), element, kept)) return true;
        return false;
    };
    for (Value element : Elements(call.list(0)))
        if (!known(element)) result.add(element);
    return result.list();
}

// (range n) or (range first end): the integers from the first (0) up to, without, the end.
Value range(Call& call) {
    int32_t first = call.count() > 1 ? call.integer(0) : 0;
    int32_t end = call.integer(call.count() - 1);
    Value result;
    for (int32_t number = end; number > first;) result = call.lisp.cons(Value::integer(--number), result);
    return result;
}

constexpr Definition FUNCTIONS[] = {
    {u"cons", cons, 2, 2},
    {u"list", list, 0, -1},
    {u"append", append, 0, -1},
    {u"reverse", reverse, 1, 1},
    {u"nth", nth, 2, 2},
    {u"nthcdr", nthCdr, 2, 2},
    {u"last", last, 1, 1},
    {u"butlast", allButLast, 1, 1},
    {u"length", length, 1, 1},
    {u"member", member, 2, 2},
    {u"position", positionOf, 2, 2},
    {u"assoc", assoc, 2, 2},
    {u"subst", substitute, 3, 3},
    {u"remove", removeElement, 2, 2},
    {u"unique", unique, 1, 1},
    {u"range", range, 1, 2},
};

}  // namespace

void defineListFunctions(Interpreter& lisp) {
    defineAll(lisp, FUNCTIONS);
    for (const char16_t* path : PATHS)
        lisp.defineNative(u"c" + std::u16string(path) + u"r", carCdr, const_cast<char16_t*>(path), 1, 1);
}

}  // namespace lisp
