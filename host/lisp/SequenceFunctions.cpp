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
        : machine_(call.lisp.machine()),
          function_(machine_.callable(call[index])),
          kept_(call.lisp, Value::of(function_)) {}

    Value operator()(Value argument) {
        Value* base = machine_.top();
        machine_.push(argument);
        return machine_.call(function_, base);
    }
    Value operator()(Value first, Value second) {
        Value* base = machine_.top();
        machine_.push(first);
        machine_.push(second);
        return machine_.call(function_, base);
    }

  private:
    Machine& machine_;
    Function* function_;
    // A function may redefine itself between two calls.
    Root kept_;
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
    Merge(std::vector<Value>& values, Callee& before) : values_(values), spare_(values), before_(before) {}

    void sort() {
        for (size_t width = 1; width < values_.size(); width *= 2) {
            for (size_t start = 0; start < values_.size(); start += 2 * width) merge(start, width);
            values_.swap(spare_);
        }
    }

  private:
    void merge(size_t start, size_t width) {
        size_t middle = std::min(start + width, values_.size());
        size_t end = std::min(middle + width, values_.size());
        size_t left = start, right = middle;
        for (size_t to = start; to < end; ++to) {
            bool takeRight =
                left == middle || (right < end && !before_(values_[right], values_[left]).isNil());
            spare_[to] = values_[takeRight ? right++ : left++];
        }
    }

    std::vector<Value>& values_;
    std::vector<Value> spare_;
    Callee& before_;
};

Value sort(Call& call) {
    std::vector<Value> values;
    for (Value element : Elements(call.list(0))) values.push_back(element);
    Callee before(call, 1);
    Merge(values, before).sort();
    return call.lisp.list(values);
}

constexpr Definition kFunctions[] = {
    {u"remove-if", removeIf, 2, 2}, {u"remove-if-not", removeIfNot, 2, 2}, {u"some", some, 2, 2},
    {u"every", every, 2, 2},        {u"member-if", memberIf, 2, 2},        {u"reduce", reduce, 2, 3},
    {u"sort", sort, 2, 2},
};

}  // namespace

void defineSequenceFunctions(Interpreter& lisp) { defineAll(lisp, kFunctions); }

}  // namespace lisp
