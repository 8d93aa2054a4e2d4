#include "host/lisp/ControlNodes.h"

#include <optional>

#include "host/lisp/Machine.h"
#include "host/lisp/Printer.h"

namespace lisp {

Value MalformedNode::eval(Machine& machine) const {
    machine.setCurrent(place, name);
    throw Error(text);
}

Value SetNode::eval(Machine& machine) const {
    machine.step();
    Value newValue = value->eval(machine).orNil();
    symbol->value = newValue;
    return result ? Value::of(result) : newValue;
}

Value SequenceNode::eval(Machine& machine) const {
    machine.step();
    Value result;
    for (const Node* node : nodes) result = node->eval(machine);
    return result;
}

Value IfNode::eval(Machine& machine) const {
    machine.step();
    return (test->eval(machine).isNil() ? whenFalse : whenTrue)->eval(machine);
}

Value CondNode::eval(Machine& machine) const {
    machine.step();
    for (const Clause& clause : clauses) {
        Value value = clause.test->eval(machine);
        if (!value.isNil()) return clause.body ? clause.body->eval(machine) : value;
    }
    return Value::nil();
}

Value JunctionNode::eval(Machine& machine) const {
    machine.step();
    for (const Node* node : nodes)
        if (!node->eval(machine).isNil() == decider) return Value::truth(decider);
    return Value::truth(!decider);
}

Value WhileNode::eval(Machine& machine) const {
    Value* kept = machine.top();
    machine.push(Value::nil());
    while (true) {
        machine.step();
        if (test->eval(machine).isNil()) break;
        *kept = body->eval(machine);
    }
    machine.popTo(kept);
    return *kept;
}

Value RepeatNode::eval(Machine& machine) const {
    machine.step();
    Value times = count->eval(machine);
    if (!times.isInteger()) {
        machine.setCurrent(place, name);
        throw Error(u"expected an integer, got " + abbreviated(machine, times), 1);
    }
    Value result;
    for (int32_t left = times.asInteger(); left > 0; --left) {
        machine.step();
        result = body->eval(machine);
    }
    return result;
}

namespace {

// Keeps a variable's former value on the value stack, and gives it back.
class Binding {
  public:
    Binding(Machine& machine, Symbol* variable) : m_variable(variable), m_slot(machine.top()) {
        machine.push(variable->value);
    }
    ~Binding() { m_variable->value = *m_slot; }
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

  private:
    Symbol* m_variable;
    Value* m_slot;
};

}  // namespace

Value ForeachNode::eval(Machine& machine) const {
    machine.step();
    Value elements = list->eval(machine);
    if (!elements.isList()) {
        machine.setCurrent(place, name);
        throw Error(u"expected a list, got " + abbreviated(machine, elements), 2);
    }
    Value* base = machine.top();
    machine.push(elements);
    Value result;
    {
        Binding binding(machine, variable);
        for (Value element : Elements(elements)) {
            variable->value = element;
            machine.step();
            result = body->eval(machine);
        }
    }
    machine.popTo(base);
    return result;
}

Value CatchErrorNode::eval(Machine& machine) const {
    machine.step();
    Value* base = machine.top();
    std::optional<std::u16string> text;
    try {
        return form->eval(machine);
    } catch (const Interrupted&) {
        throw;
    } catch (Error& error) {
        machine.locate(error);
        text = error.text();
    }
    machine.popTo(base);
    if (!handler) return Value::of(machine.heap.string(std::move(*text)));
    Value function = handler->eval(machine).orNil();
    machine.push(Value::of(machine.heap.string(std::move(*text))));
    return machine.call(machine.callable(function), base);
}

}  // namespace lisp
