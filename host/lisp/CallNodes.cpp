#include "host/lisp/CallNodes.h"

#include "host/lisp/Machine.h"

namespace lisp {

Value CallNode::eval(Machine& machine) const {
    machine.step();
    Value* base = machine.top();
    for (const Node* argument : arguments) machine.push(argument->eval(machine).orNil());
    return callWith(machine, base);
}

Value CallNode::callWith(Machine& machine, Value* base) const {
    machine.setCurrent(place, name);
    Value function = name->value;
    if (function.isFunction()) [[likely]]
        return machine.call(function.asFunction(), base);
    if (function.isNil()) throw Error(u"no such function");
    return machine.call(machine.callable(function), base);
}

Value CallValueNode::eval(Machine& machine) const {
    machine.step();
    Value* kept = machine.top();
    machine.push(function->eval(machine).orNil());
    Value* base = machine.top();
    for (const Node* argument : arguments) machine.push(argument->eval(machine).orNil());
    machine.setCurrent(place, nullptr);
    Value result = machine.call(machine.callable(*kept), base);
    machine.popTo(kept);
    return result;
}

}  // namespace lisp
