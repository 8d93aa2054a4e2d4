#include "host/lisp/Analysis.h"

#include <iterator>
#include <optional>

#include "host/lisp/Arithmetic.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/CallNodes.h"
#include "host/lisp/ControlNodes.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Printer.h"
#include "host/lisp/SpecialForms.h"
#include "host/lisp/Text.h"

namespace lisp {

namespace {

// Why a special form is malformed.
struct Malformed {
    std::u16string text;
};

class Analyser;

// Analyses into one Code.
class Analyser {
  public:
    Analyser(Machine& machine, Code& code, Place place) : m_machine(machine), m_code(code), m_place(place) {}

    const Node* node(Value form);
    const Node* body(Value forms);

    const Node* quote(Value arguments);
    const Node* function(Value arguments);
    const Node* ifForm(Value arguments);
    const Node* cond(Value arguments);
    const Node* andForm(Value arguments) { return m_code.make<JunctionNode>(nodes(arguments), false); }
    const Node* orForm(Value arguments) { return m_code.make<JunctionNode>(nodes(arguments), true); }
    const Node* progn(Value arguments) { return body(arguments); }
    const Node* setq(Value arguments);
    const Node* whileForm(Value arguments);
    const Node* repeat(Value arguments);
    const Node* foreach (Value arguments);
    const Node* lambda(Value arguments);
    const Node* defun(Value arguments);
    const Node* catchError(Value arguments);

  private:
    const Node* list(Value form);
    const Node* call(Symbol* name, Value arguments);
    const Node* constant(Value value);
    NodeList nodes(Value forms);
    // The first of the remaining arguments, which it takes off.
    Value take(Value& arguments, const char16_t* what) const;
    Symbol* variable(Value value) const;
    Function* makeFunction(Value parameters, Value forms);

    Machine& m_machine;
    Code& m_code;
    // Of the innermost form that the reader placed.
    Place m_place;
    Symbol* m_form = nullptr;
};

// In the order of their numbers from 1 on.
constexpr const Node* (Analyser::*ANALYSES[])(Value arguments) = {
    &Analyser::quote,   &Analyser::function, &Analyser::ifForm, &Analyser::cond,       &Analyser::andForm,
    &Analyser::orForm,  &Analyser::progn,    &Analyser::setq,   &Analyser::whileForm,  &Analyser::repeat,
    &Analyser::foreach, &Analyser::lambda,   &Analyser::defun,  &Analyser::catchError,
};
static_assert(std::size(ANALYSES) == std::size(SPECIAL_FORM_NAMES));

const Node* Analyser::node(Value form) {
    m_machine.checkDepth();
    if (form.isSymbol()) return m_code.make<VariableNode>(form.asSymbol());
    return form.isCons() ? list(form) : constant(form);
}

const Node* Analyser::list(Value form) {
    Place outer = m_place;
    Symbol* outerForm = m_form;
    // What `read` made of a string counts for where it is evaluated.
    if (form.asCons()->place.file) m_place = form.asCons()->place;
    Value head = form.car(), arguments = form.cdr();
    const Node* result = nullptr;
    m_form = head.isSymbol() ? head.asSymbol() : nullptr;
    try {
        if (m_form && m_form->specialForm)
            result = (this->*ANALYSES[m_form->specialForm - 1])(arguments);
        else if (m_form)
            result = call(m_form, arguments);
        else
            result = m_code.make<CallValueNode>(m_place, node(head), nodes(arguments));
    } catch (const Malformed& fault) {
        result = m_code.make<MalformedNode>(m_place, m_form, fault.text);
    }
    m_place = outer;
    m_form = outerForm;
    return result;
}

const Node* Analyser::constant(Value value) {
    m_code.constants.push_back(value);
    return m_code.make<ConstantNode>(value.orNil());
}

NodeList Analyser::nodes(Value forms) {
    NodeList result;
    for (Value form : Elements(forms)) result.push_back(node(form));
    return result;
}

const Node* Analyser::body(Value forms) {
    if (!forms.isCons()) return constant(Value::nil());
    if (!forms.cdr().isCons()) return node(forms.car());
    return m_code.make<SequenceNode>(nodes(forms));
}

Value Analyser::take(Value& arguments, const char16_t* what) const {
    if (!arguments.isCons()) throw Malformed{std::u16string(what) + u" is missing"};
    Value first = arguments.car();
    arguments = arguments.cdr();
    return first;
}

Symbol* Analyser::variable(Value value) const {
    if (!value.isSymbol()) throw Malformed{u"expected a variable, got " + abbreviated(m_machine, value)};
    if (value.asSymbol()->specialForm)
        throw Malformed{lowerCase(value.symbolName()) + u" can't be used as a variable or function name"};
    return value.asSymbol();
}

const Node* Analyser::quote(Value arguments) { return constant(take(arguments, u"what to quote")); }

const Node* Analyser::function(Value arguments) {
    Value quoted = take(arguments, u"a function");
    return isLambda(m_machine, quoted) ? node(quoted) : constant(quoted);
}

const Node* Analyser::ifForm(Value arguments) {
    const Node* test = node(take(arguments, u"the condition"));
    const Node* yes = node(take(arguments, u"what to do when it holds"));
    const Node* no = node(arguments.isCons() ? arguments.car() : Value::nil());
    if (arguments.isCons() && arguments.cdr().isCons())
        throw Malformed{u"expected at most 3 parts: a condition and what to do in each case (see progn)"};
    return m_code.make<IfNode>(test, yes, no);
}

const Node* Analyser::cond(Value arguments) {
    auto* result = m_code.make<CondNode>();
    for (Value clause : Elements(arguments)) {
        if (!clause.isCons()) throw Malformed{u"expected a clause, got " + abbreviated(m_machine, clause)};
        const Node* test = node(clause.car());
        result->clauses.push_back({test, clause.cdr().isCons() ? body(clause.cdr()) : nullptr});
    }
    return result;
}

const Node* Analyser::setq(Value arguments) {
    NodeList settings;
    while (arguments.isCons()) {
        Symbol* target = variable(take(arguments, u"a variable"));
        const Node* value = node(take(arguments, u"the value"));
        settings.push_back(m_code.make<SetNode>(target, value));
    }
    if (settings.empty()) throw Malformed{u"a variable is missing"};
    return settings.size() == 1 ? settings[0] : m_code.make<SequenceNode>(std::move(settings));
}

const Node* Analyser::whileForm(Value arguments) {
    const Node* test = node(take(arguments, u"the condition"));
    return m_code.make<WhileNode>(test, body(arguments));
}

const Node* Analyser::repeat(Value arguments) {
    const Node* count = node(take(arguments, u"how often"));
    return m_code.make<RepeatNode>(m_place, m_form, count, body(arguments));
}

const Node* Analyser::foreach (Value arguments) {
    Symbol* element = variable(take(arguments, u"a variable"));
    const Node* elements = node(take(arguments, u"a list"));
    return m_code.make<ForeachNode>(m_place, m_form, element, elements, body(arguments));
}

const Node* Analyser::lambda(Value arguments) {
    Value parameters = take(arguments, u"the list of parameters");
    return constant(Value::of(makeFunction(parameters, arguments)));
}

const Node* Analyser::defun(Value arguments) {
    Symbol* name = variable(take(arguments, u"the name"));
    Value parameters = take(arguments, u"the list of parameters");
    Function* made = makeFunction(parameters, arguments);
    made->name = name;
    return m_code.make<SetNode>(name, constant(Value::of(made)), name);
}

const Node* Analyser::catchError(Value arguments) {
    const Node* tried = node(take(arguments, u"the form to try"));
    return m_code.make<CatchErrorNode>(tried, arguments.isCons() ? node(arguments.car()) : nullptr);
}

Function* Analyser::makeFunction(Value parameters, Value forms) {
    if (!parameters.isList())
        throw Malformed{u"expected a list of parameters, got " + abbreviated(m_machine, parameters)};
    Function* function = m_machine.heap.function();
    bool locals = false;
    for (Value parameter : Elements(parameters)) {
        Symbol* symbol = variable(parameter);
        if (symbol->name == u"/" && !locals) {
            locals = true;
            function->minimum = uint32_t(function->variables.size());
        } else {
            function->variables.push_back(symbol);
        }
    }
    if (!locals) function->minimum = uint32_t(function->variables.size());
    function->maximum = function->minimum;
    function->code = m_machine.heap.code();
    function->code->root = Analyser(m_machine, *function->code, m_place).body(forms);
    m_machine.heap.charge(64 * function->code->nodes.size());
    return function;
}

template <class Operation>
const Node* makeArithmetic(Code& code, Place place, Symbol* name, NodeList arguments) {
    code.constants.push_back(name->value);
    return code.make<ArithmeticNode<Operation>>(place, name, std::move(arguments));
}

const Node* Analyser::call(Symbol* name, Value arguments) {
    NodeList list = nodes(arguments);
    if (list.size() == 2 && name->value.isFunction()) {
        struct Fast {
            NativeFunction native;
            const Node* (*make)(Code&, Place, Symbol*, NodeList);
        };
        static constexpr Fast FAST_FORMS[] = {
            {addNumbers, makeArithmetic<Add>},
            {subtractNumbers, makeArithmetic<Subtract>},
            {multiplyNumbers, makeArithmetic<Multiply>},
            {divideNumbers, makeArithmetic<Divide>},
            {remainderOfNumbers, makeArithmetic<Remainder>},
            {compareEqual, makeArithmetic<Equal>},
            {compareLess, makeArithmetic<Less>},
            {compareGreater, makeArithmetic<Greater>},
            {compareLessOrEqual, makeArithmetic<LessOrEqual>},
            {compareGreaterOrEqual, makeArithmetic<GreaterOrEqual>},
        };
        NativeFunction native = name->value.asFunction()->native;
        for (const Fast& fast : FAST_FORMS)
            if (fast.native == native) return fast.make(m_code, m_place, name, std::move(list));
    }
    return m_code.make<CallNode>(m_place, name, std::move(list));
}

}  // namespace

Code* analyse(Machine& machine, Value form) {
    Code* code = machine.heap.code();
    code->root = Analyser(machine, *code, machine.currentPlace()).node(form);
    machine.heap.charge(64 * code->nodes.size());
    return code;
}

void defineSpecialForms(Machine& machine) {
    uint8_t number = 0;
    for (const std::u16string_view name : SPECIAL_FORM_NAMES)
        machine.symbols.intern(name)->specialForm = ++number;
}

bool isLambda(Machine& machine, Value list) {
    return list.isCons() && list.car().isSymbol() && list.car().asSymbol() == machine.symbols.find(u"LAMBDA");
}

}  // namespace lisp
