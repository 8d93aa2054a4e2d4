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
constexpr int64_t kChunk = 1000;

// Gives variables their values from the stack for the length of a call, keeping the former values there.
class Bindings {
  public:
    Bindings(const std::vector<Symbol*>& variables, Value* slots) : variables_(variables), slots_(slots) {
        for (size_t i = 0; i < variables_.size(); ++i) std::swap(variables_[i]->value, slots_[i]);
    }
    ~Bindings() {
        for (size_t i = variables_.size(); i-- > 0;) std::swap(variables_[i]->value, slots_[i]);
    }
    Bindings(const Bindings&) = delete;
    Bindings& operator=(const Bindings&) = delete;

  private:
    const std::vector<Symbol*>& variables_;
    Value* slots_;
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
      heap(limits.heapBytes, fuel_),
      limits_(limits),
      stepsLeft_(limits.steps ? limits.steps : UINT64_MAX),
      stack_(static_cast<Value*>(std::malloc(limits.stackBytes)), &std::free) {
    if (!stack_) throw std::bad_alloc();
    top_ = stack_.get();
    stackLimit_ = top_ + limits.stackBytes / sizeof(Value);
}

Value Machine::call(Function* function, Value* base) {
    size_t given = size_t(top_ - base);
    if (given < function->minimum || given > function->maximum)
        throw Error(argumentCountText(function->minimum, function->maximum, given));
    if (!function->native) return callLisp(function, base);
    Call call{interpreter, {base, given}, function->userData};
    Value result = function->native(call);
    top_ = base;
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
    top_ = base;
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
    Value* base = top_;
    push(form);
    Value result = list->code->root->eval(*this);
    top_ = base;
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
    std::lock_guard lock(fileNamesLock_);
    auto found = std::find(fileNames_.begin(), fileNames_.end(), name);
    if (found == fileNames_.end()) found = fileNames_.insert(fileNames_.end(), std::u16string(name));
    return uint32_t(found - fileNames_.begin()) + 1;
}

void Machine::locate(Error& error) const {
    Place place = currentPlace();
    std::lock_guard lock(fileNamesLock_);
    error.locate(place.file ? fileNames_[place.file - 1] : std::u16string(), int(place.line),
                 function_ ? lowerCase(function_->name) : std::u16string());
}

SourceLine Machine::place() const {
    Place place = currentPlace();
    if (!place.file) return {};
    std::lock_guard lock(fileNamesLock_);
    return {fileNames_[place.file - 1], int(place.line)};
}

Machine::Entry::Entry(Machine& machine) : machine_(machine), top_(machine.top_) {
    auto here = reinterpret_cast<uintptr_t>(__builtin_frame_address(0));
    if (here > machine.stackStart_) {
        machine.stackStart_ = here;
        machine.stackEnd_ = here - std::min<uintptr_t>(here, machine.limits_.stackBytes);
    }
}

void Machine::refuel() {
    if (interrupted_) throw Interrupted(u"interrupted");
    stepsLeft_ -= std::min(stepsLeft_, uint64_t(chunk_));
    if (stepsLeft_ == 0) throw Interrupted(u"too many steps");
    if (collectAlways_ || heap.wantsCollection()) collect();
    chunk_ = collectAlways_ ? 1 : int64_t(std::min(uint64_t(kChunk), stepsLeft_));
    fuel_ = chunk_ - 1;
}

void Machine::clearInterrupt() {
    interrupted_ = false;
    stepsLeft_ = limits_.steps ? limits_.steps : UINT64_MAX;
    chunk_ = fuel_ = 0;
}

void Machine::setCollectAlways(bool always) {
    collectAlways_ = always;
    chunk_ = fuel_ = 0;
}

void Machine::collect() {
    heap.collect([this] {
        for (const Value* value = stack_.get(); value < top_; ++value) heap.mark(*value);
        for (const auto& [name, symbol] : symbols) heap.mark(symbol->value);
    });
}

void Machine::tooDeep() const { throw Error(u"nested too deeply"); }

}  // namespace lisp
