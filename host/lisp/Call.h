// One call of a native function: its arguments with readers that refuse what is of the wrong kind.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/lisp/Value.h"

namespace lisp {

class Interpreter;

struct Call {
    Interpreter& lisp;
    // Alive until the function returns.
    std::span<const Value> arguments;
    // As given to Interpreter::defineNative.
    void* userData;

    size_t count() const { return arguments.size(); }
    bool has(size_t index) const { return index < arguments.size(); }
    // Counted from 0; nil where there is none.
    Value operator[](size_t index) const { return has(index) ? arguments[index] : Value::nil(); }

    // Each throws an Error that names the argument (from 1), what was expected and what came.
    int32_t integer(size_t index) const;
    double number(size_t index) const;
    const std::u16string& text(size_t index) const;
    // A proper or dotted list or nil.
    Value list(size_t index) const;
    Value symbol(size_t index) const;
    // For optional arguments: a default where it is missing or nil.
    int32_t integerOr(size_t index, int32_t otherwise) const;

    // "expected WHAT, got VALUE" for one argument. `what` is ASCII.
    [[noreturn]] void expected(size_t index, const char* what) const;
};

using NativeFunction = Value (*)(Call& call);

}  // namespace lisp
