// Functions that put a list's elements through a function.
#include <algorithm>
#include <vector>

#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"

namespace lisp {

namespace {

// The function that is the first argument (or `index`), ready to be called many times.
class Callee {
  public:
    explicit Callee(Call& call, size_t index = 0)
        : m_machine(call.lisp.machine()),
          m_function(m_machine.callable(call[index])),
          m_kept(call.lisp, Value::of(m_function)) {}

    Value operator()(Value argument) {
        Value* base = m_machine.top();
        m_machine.push(argument);
        return m_machine.call(m_function, base);
    }
    Value operator()(Value first, Value second) {
        Value* base = m_machine.top();
        m_machine.push(first);
        m_machine.push(second);
        return m_machine.call(m_function, base);
    }

  private:
    Machine& m_machine;
    Function* m_function;
    // A function may redefine itself between two calls.
    Root m_kept;
};

Value keepWhere(Call& call, bool kept) {
    Callee test(call);
    ListBuilder result(call.lisp);
    for (Value element : Elements(call.list(1)))
        if (!test(element).isNil() == kept) result.add(element);
    return result.list();
}

Value removeIf(Call& call) { return keepWhere(call, false); }
Value removeIfNot(Call& call) { return keepWhere(call, true); }

Value some(Call& call) {
    Callee test(call);
    for (Value element : Elements(call.list(1)))
        if (Value value = test(element); !value.isNil()) return value;
    return Value::nil();
}

Value every(Call& call) {
    Callee test(call);
    for (Value element : Elements(call.list(1)))
        if (test(element).isNil()) return Value::nil();
    return Value::truth();
}

Value memberIf(Call& call) {
    Callee test(call);
    for (Value rest = call.list(1); rest.isCons(); rest = rest.cdr())
        if (!test(rest.car()).isNil()) return rest;
    return Value::nil();
}

Value reduce(Call& call) {
    Callee combine(call);
    Value rest = call.list(1);
    Value result = call.count() > 2 ? call[2] : rest.car();
    if (call.count() == 2) rest = rest.cdr();
    for (Value element : Elements(rest)) result = combine(result, element);
    return result.orNil();
}

// A merge sort of our own, because a program's order may contradict itself and the library's then leaves its
// range.
class Merge {
  public:
    Merge(std::vector<Value>& values, Callee& before) : m_values(values), m_spare(values), m_before(before) {}

    void sort() {
        for (size_t width = 1; width < m_values.size(); width *= 2) {
            for (size_t start = 0; start < m_values.size(); start += 2 * width) merge(start, width);
            m_values.swap(m_spare);
        }
    }

  private:
    void merge(size_t start, size_t width) {
        size_t middle = std::min(start + width, m_values.size());
        size_t end = std::min(middle + width, m_values.size());
        size_t left = start, right = middle;
        for (size_t to = start; to < end; ++to) {
            bool takeRight =
                left == middle || (right < end && !m_before(m_values[right], m_values[left]).isNil());
            m_spare[to] = m_values[takeRight ? right++ : left++];
        }
    }

    std::vector<Value>& m_values;
    std::vector<Value> m_spare;
    Callee& m_before;
};

Value sort(Call& call) {
    std::vector<Value> values;
    for (Value element : Elements(call.list(0))) values.push_back(element);
    Callee before(call, 1);
    Merge(values, before).sort();
    return call.lisp.list(values);
}

constexpr Definition FUNCTIONS[] = {
    {u"remove-if", removeIf, 2, 2}, {u"remove-if-not", removeIfNot, 2, 2}, {u"some", some, 2, 2},
    {u"every", every, 2, 2},        {u"member-if", memberIf, 2, 2},        {u"reduce", reduce, 2, 3},
    {u"sort", sort, 2, 2},
};

}  // namespace

void defineSequenceFunctions(Interpreter& lisp) { defineAll(lisp, FUNCTIONS); }

}  // namespace lisp
