#include "host/lisp/Interpreter.h"

#include <cstdio>
#include <fstream>
#include <iterator>

#include "host/lisp/Analysis.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"

namespace lisp {

namespace {

void writeToStandardOutput(std::u16string_view text) {
    std::string bytes = toUtf8(text);
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

std::u16string textOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open() || stream.bad()) throw Error(u"can't open " + readable(fromPath(path)));
    return decodeFile(bytes);
}

}  // namespace

std::u16string SourceLine::text() const {
    return file.empty() ? std::u16string() : file + u":" + decimal(int64_t(line));
}

Interpreter::Interpreter(Limits limits)
    : m_machine(std::make_unique<Machine>(*this, limits)), m_files(std::make_unique<FileAccess>()) {
    setOutput(nullptr);
    defineSpecialForms(*m_machine);
    defineControlFunctions(*this);
    definePredicates(*this);
    defineListFunctions(*this);
    defineSequenceFunctions(*this);
    defineNumberFunctions(*this);
    defineStringFunctions(*this);
    defineOutputFunctions(*this);
    defineFileFunctions(*this);
}

Interpreter::~Interpreter() = default;

// Runs work that may call Lisp: puts the value stack back and tells where an error came up.
template <class Work>
auto Interpreter::guarded(Work&& work) {
    Machine::Entry entry(*m_machine);
    try {
        return work();
    } catch (Error& error) {
        m_machine->locate(error);
        throw;
    }
}

Value Interpreter::string(std::u16string_view text) {
    return Value::of(m_machine->heap.string(std::u16string(text)));
}

Value Interpreter::symbol(std::u16string_view name) {
    if (name.size() == 3 && upperCase(name) == u"NIL") return Value::nil();
    if (name.size() == 1 && upperCase(name[0]) == u'T') return Value::truth();
    return Value::of(m_machine->symbols.intern(name));
}

Value Interpreter::cons(Value first, Value rest) { return Value::of(m_machine->heap.cons(first, rest)); }

Value Interpreter::list(std::span<const Value> elements) {
    Value result;
    for (size_t i = elements.size(); i-- > 0;) result = cons(elements[i], result);
    return result;
}

Value Interpreter::list(std::initializer_list<Value> elements) {
    return list(std::span(elements.begin(), elements.size()));
}

void Interpreter::defineNative(std::u16string_view name, NativeFunction native, void* userData, int minimum,
                               int maximum) {
    Symbol* symbol = m_machine->symbols.intern(name);
    Function* function = m_machine->heap.function();
    function->name = symbol;
    function->native = native;
    function->userData = userData;
    function->minimum = uint32_t(minimum);
    if (maximum >= 0) function->maximum = uint32_t(maximum);
    symbol->value = Value::of(function);
}

void Interpreter::undefine(std::u16string_view name) { setSymbol(name, Value::nil()); }

void Interpreter::setSymbol(std::u16string_view name, Value value) {
    Value target = symbol(name);
    if (target.isSymbol()) target.asSymbol()->value = value.orNil();
}

Value Interpreter::getSymbol(std::u16string_view name) {
    Value source = symbol(name);
    return source.isSymbol() ? source.asSymbol()->value : source;
}

Value Interpreter::eval(Value form) {
    return guarded([&] { return m_machine->eval(form); });
}

Value Interpreter::call(Value function, std::span<const Value> arguments) {
    return guarded([&] {
        Machine& machine = *m_machine;
        Function* callee = machine.callable(function);
        Value* base = machine.top();
        for (Value argument : arguments) machine.push(argument.orNil());
        return machine.call(callee, base);
    });
}

std::optional<Value> Interpreter::apply(std::u16string_view name, std::span<const Value> arguments) {
    Symbol* symbol = m_machine->symbols.find(name);
    if (!symbol || symbol->specialForm) return std::nullopt;
    bool callable = symbol->value.isFunction() || isLambda(*m_machine, symbol->value);
    if (!callable) return std::nullopt;
    return call(Value::of(symbol), arguments);
}

Value Interpreter::evalText(std::u16string_view text, std::u16string_view name) {
    return guarded([&] { return m_machine->evalText(text, name); });
}

std::filesystem::path Interpreter::found(std::u16string_view name) const {
    std::optional<std::filesystem::path> path = m_files->find(name);
    if (!path) throw Error(u"can't open " + readable(name));
    return *path;
}

Value Interpreter::loadFile(std::u16string_view name) { return loadPath(found(name)); }

Value Interpreter::loadPath(const std::filesystem::path& path) {
    return evalText(textOf(path), fromPath(path.filename()));
}

std::u16string Interpreter::fileText(std::u16string_view name) const { return textOf(found(name)); }

Value Interpreter::read(std::u16string_view text) {
    return guarded([&] {
        Value form;
        Reader(*m_machine, text, 0).next(form);
        return form;
    });
}

Value Interpreter::readAll(std::u16string_view text, const SourceLine& place) {
    return guarded([&] { return m_machine->readAll(text, place); });
}

bool Interpreter::isComplete(std::u16string_view text) { return Reader::isComplete(text); }

std::u16string Interpreter::display(Value value) const { return printed(*m_machine, value, false); }
std::u16string Interpreter::print(Value value) const { return printed(*m_machine, value, true); }

void Interpreter::setOutput(std::function<void(std::u16string_view)> output) {
    m_output = output ? std::move(output) : writeToStandardOutput;
}

void Interpreter::write(std::u16string_view text) { m_output(text); }

void Interpreter::setFileAccess(std::unique_ptr<FileAccess> access) {
    m_files = access ? std::move(access) : std::make_unique<FileAccess>();
}

void Interpreter::interrupt() { m_machine->interrupt(); }
void Interpreter::clearInterrupt() { m_machine->clearInterrupt(); }
SourceLine Interpreter::place() const { return lineOf(placeMark()); }

Place Interpreter::placeMark() const { return m_machine->currentPlace(); }

SourceLine Interpreter::lineOf(Place mark) const { return m_machine->lineOf(mark); }
void Interpreter::setCollectAlways(bool always) { m_machine->setCollectAlways(always); }
size_t Interpreter::heapBytesInUse() const { return m_machine->heap.used(); }
Root*& Interpreter::rootList() { return m_machine->heap.roots(); }

void ListBuilder::addTail(Value value, bool asElement) {
    Value added = asElement ? m_lisp.cons(value, {}) : value.orNil();
    if (m_last)
        m_last->cdr = added;
    else
        m_list = added;
    if (asElement) m_last = added.asCons();
}

}  // namespace lisp
