// Nodes of the special forms.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/lisp/Node.h"

namespace lisp {

using NodeList = std::vector<const Node*>;

struct ConstantNode : Node {
    explicit ConstantNode(Value constant) : value(constant) {}
    Value eval(Machine&) const override { return value; }
    Value value;
};

struct VariableNode : Node {
    explicit VariableNode(const Symbol* variable) : symbol(variable) {}
    Value eval(Machine&) const override { return symbol->value; }
    const Symbol* symbol;
};

// A special form that was written wrong.
struct MalformedNode : Node {
    MalformedNode(Place where, const Symbol* form, std::u16string message)
        : place(where), name(form), text(std::move(message)) {}
    Value eval(Machine& machine) const override;
    Place place;
    const Symbol* name;
    std::u16string text;
};

// Sets a variable; `result` is given in place of the new value unless it is null (defun gives its name).
struct SetNode : Node {
    SetNode(Symbol* target, const Node* source, const Symbol* given = nullptr)
        : symbol(target), value(source), result(given) {}
    Value eval(Machine& machine) const override;
    Symbol* symbol;
    const Node* value;
    const Symbol* result;
};

struct SequenceNode : Node {
    explicit SequenceNode(NodeList list) : nodes(std::move(list)) {}
    Value eval(Machine& machine) const override;
    NodeList nodes;
};

struct IfNode : Node {
    IfNode(const Node* condition, const Node* yes, const Node* no)
        : test(condition), whenTrue(yes), whenFalse(no) {}
    Value eval(Machine& machine) const override;
    const Node* test;
    const Node* whenTrue;
    const Node* whenFalse;
};

struct CondNode : Node {
    // A clause without a body gives its test's value.
    struct Clause {
        const Node* test;
        const Node* body;
    };
    Value eval(Machine& machine) const override;
    std::vector<Clause> clauses;
};

// `and` and `or`: T or nil.
struct JunctionNode : Node {
    JunctionNode(NodeList list, bool decidedBy) : nodes(std::move(list)), decider(decidedBy) {}
    Value eval(Machine& machine) const override;
    NodeList nodes;
    bool decider;
};

struct WhileNode : Node {
    WhileNode(const Node* condition, const Node* repeated) : test(condition), body(repeated) {}
    Value eval(Machine& machine) const override;
    const Node* test;
    const Node* body;
};

struct RepeatNode : Node {
    RepeatNode(Place where, const Symbol* form, const Node* times, const Node* repeated)
        : place(where), name(form), count(times), body(repeated) {}
    Value eval(Machine& machine) const override;
    Place place;
    const Symbol* name;
    const Node* count;
    const Node* body;
};

struct ForeachNode : Node {
    ForeachNode(Place where, const Symbol* form, Symbol* element, const Node* elements, const Node* repeated)
        : place(where), name(form), variable(element), list(elements), body(repeated) {}
    Value eval(Machine& machine) const override;
    Place place;
    const Symbol* name;
    Symbol* variable;
    const Node* list;
    const Node* body;
};

struct CatchErrorNode : Node {
    // Without a handler (null) the error's text is the value.
    CatchErrorNode(const Node* tried, const Node* onError) : form(tried), handler(onError) {}
    Value eval(Machine& machine) const override;
    const Node* form;
    const Node* handler;
};

}  // namespace lisp
