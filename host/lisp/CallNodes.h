// Nodes of function calls.
#pragma once

#include "host/lisp/ControlNodes.h"
#include "host/lisp/Machine.h"

namespace lisp {

// (name argument …): the function is the symbol's value at the time of the call.
struct CallNode : Node {
    CallNode(Place where, Symbol* function, NodeList list)
        : place(where), name(function), arguments(std::move(list)) {}
    Value eval(Machine& machine) const override;

    // Calls with the arguments that were pushed from `base` on.
    Value callWith(Machine& machine, Value* base) const;

    Place place;
    Symbol* name;
    NodeList arguments;
};

// ((lambda …) argument …)
struct CallValueNode : Node {
    CallValueNode(Place where, const Node* head, NodeList list)
        : place(where), function(head), arguments(std::move(list)) {}
    Value eval(Machine& machine) const override;
    Place place;
    const Node* function;
    NodeList arguments;
};

// A call of two arguments that is likely to be arithmetic on numbers: done in place as long as the name has
// its first meaning and both are numbers that the operation takes.
template <class Operation>
struct ArithmeticNode : CallNode {
    ArithmeticNode(Place where, Symbol* function, NodeList list)
        : CallNode(where, function, std::move(list)), builtin(function->value) {}

    Value eval(Machine& machine) const override {
        machine.step();
        Value* base = machine.top();
        machine.push(arguments[0]->eval(machine).orNil());
        Value b = arguments[1]->eval(machine).orNil();
        Value a = *base;
        if (name->value == builtin) [[likely]] {
            Value result;
            if (a.isInteger() && b.isInteger() && Operation::integers(a.asInteger(), b.asInteger(), result)) {
                machine.popTo(base);
                return result;
            }
            if (a.isNumber() && b.isNumber() && Operation::reals(a.asNumber(), b.asNumber(), result)) {
                machine.popTo(base);
                return result;
            }
        }
        machine.push(b);
        return callWith(machine, base);
    }

    Value builtin;
};

}  // namespace lisp
