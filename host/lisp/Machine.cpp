#include "host/lisp/Machine.h"

#include <algorithm>
#include <new>

#include "host/lisp/Analysis.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"

namespace lisp {

namespace {

// Steps between two looks at the interrupt flag and the heap.
constexpr int64_t CHUNK = 1000;

// Gives variables their values from the stack for the length of a call, keeping the former values there.
class Bindings {
  public:
    Bindings(const std::vector<Symbol*>& variables, Value* slots) : m_variables(variables), m_slots(slots) {
        for (size_t i = 0; i < m_variables.size(); ++i) std::swap(m_variables[i]->value, m_slots[i]);
    }
    ~Bindings() {
        for (size_t i = m_variables.size(); i-- > 0;) std::swap(m_variables[i]->value, m_slots[i]);
    }
    Bindings(const Bindings&) = delete;
    Bindings& operator=(const Bindings&) = delete;

  private:
    const std::vector<Symbol*>& m_variables;
    Value* m_slots;
};

std::u16string argumentCountText(uint32_t minimum, uint32_t maximum, size_t given) {
    std::u16string wanted = decimal(int64_t(minimum));
    if (maximum == UINT32_MAX)
        wanted = u"at least " + wanted;
    else if (maximum != minimum)
        wanted += u" to " + decimal(int64_t(maximum));
    bool one = (maximum == UINT32_MAX ? minimum : maximum) == 1;
    return u"expected " + wanted + (one ? u" argument" : u" arguments") + u", got " + decimal(int64_t(given));
}

}  // namespace

Machine::Machine(Interpreter& owner, Limits limits)
    : interpreter(owner),
      heap(limits.heapBytes, m_fuel),
      m_limits(limits),
      m_stepsLeft(limits.steps ? limits.steps : UINT64_MAX),
      m_stack(static_cast<Value*>(std::malloc(limits.stackBytes)), &std::free) {
    if (!m_stack) throw std::bad_alloc();
    m_top = m_stack.get();
    m_stackLimit = m_top + limits.stackBytes / sizeof(Value);
}

Value Machine::call(Function* function, Value* base) {
    size_t given = size_t(m_top - base);
    if (given < function->minimum || given > function->maximum)
        throw Error(argumentCountText(function->minimum, function->maximum, given));
    if (!function->native) return callLisp(function, base);
    Call call{interpreter, {base, given}, function->userData};
    Value result = function->native(call);
    m_top = base;
    return result;
}

Value Machine::callLisp(Function* function, Value* base) {
    const std::vector<Symbol*>& variables = function->variables;
    for (size_t i = function->minimum; i < variables.size(); ++i) push(Value::nil());
    // A function may be redefined while it runs.
    push(Value::of(function));
    Value result;
    {
        Bindings bindings(variables, base);
        result = function->code->root->eval(*this);
    }
    m_top = base;
    return result;
}

Function* Machine::callable(Value value) {
    Value function = value;
    if (function.isSymbol()) function = function.asSymbol()->value;
    // A lambda list evaluates to its function; quoted lists are called so.
    if (function.isCons() && isLambda(*this, function)) function = eval(function);
    if (function.isFunction()) return function.asFunction();
    if (value.isSymbol() && function.isNil())
        throw Error(u"no such function: " + lowerCase(value.symbolName()));
    throw Error(u"expected a function, got " + abbreviated(*this, value));
}

Value Machine::eval(Value form) {
    if (form.isSymbol()) return form.asSymbol()->value;
    if (!form.isCons()) return form.orNil();
    Cons* list = form.asCons();
    if (!list->code) list->code = analyse(*this, form);
    Value* base = m_top;
    push(form);
    Value result = list->code->root->eval(*this);
    m_top = base;
    return result;
}

Value Machine::evalText(std::u16string_view text, std::u16string_view name) {
    Reader reader(*this, text, fileNumber(name));
    Value result;
    while (true) {
        if (heap.wantsCollection()) collect();
        Value form;
        if (!reader.next(form)) return result;
        result = eval(form);
    }
}

Value Machine::readAll(std::u16string_view text, const SourceLine& place) {
    Reader reader(*this, text, fileNumber(place.file), uint32_t(place.line));
    ListBuilder forms(interpreter);
    Value form;
    while (reader.next(form)) forms.add(form);
    return forms.list();
}

uint32_t Machine::fileNumber(std::u16string_view name) {
    std::lock_guard lock(m_fileNamesLock);
    auto found = std::find(m_fileNames.begin(), m_fileNames.end(), name);
    if (found == m_fileNames.end()) found = m_fileNames.insert(m_fileNames.end(), std::u16string(name));
    return uint32_t(found - m_fileNames.begin()) + 1;
}

void Machine::locate(Error& error) const {
    Place place = currentPlace();
    std::lock_guard lock(m_fileNamesLock);
    error.locate(place.file ? m_fileNames[place.file - 1] : std::u16string(), int(place.line),
                 m_function ? lowerCase(m_function->name) : std::u16string());
}

SourceLine Machine::lineOf(Place place) const {
    if (!place.file) return {};
    std::lock_guard lock(m_fileNamesLock);
    return {m_fileNames[place.file - 1], int(place.line)};
}

Machine::Entry::Entry(Machine& machine) : m_machine(machine), m_top(machine.m_top) {
    auto here = reinterpret_cast<uintptr_t>(__builtin_frame_address(0));
    if (here > machine.m_stackStart) {
        machine.m_stackStart = here;
        machine.m_stackEnd = here - std::min<uintptr_t>(here, machine.m_limits.stackBytes);
    }
}

void Machine::refuel() {
    if (m_interrupted) throw Interrupted(u"interrupted");
    m_stepsLeft -= std::min(m_stepsLeft, uint64_t(m_chunk));
    if (m_stepsLeft == 0) throw Interrupted(u"too many steps");
    if (m_collectAlways || heap.wantsCollection()) collect();
    m_chunk = m_collectAlways ? 1 : int64_t(std::min(uint64_t(CHUNK), m_stepsLeft));
    m_fuel = m_chunk - 1;
}

void Machine::clearInterrupt() {
    m_interrupted = false;
    m_stepsLeft = m_limits.steps ? m_limits.steps : UINT64_MAX;
    m_chunk = m_fuel = 0;
}

void Machine::setCollectAlways(bool always) {
    m_collectAlways = always;
    m_chunk = m_fuel = 0;
}

void Machine::collect() {
    heap.collect([this] {
        for (const Value* value = m_stack.get(); value < m_top; ++value) heap.mark(*value);
        for (const auto& [name, symbol] : symbols) heap.mark(symbol->value);
    });
}

void Machine::tooDeep() const { throw Error(u"nested too deeply"); }

}  // namespace lisp
