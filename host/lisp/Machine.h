// What evaluates analysed code: the value stack, the count of steps, the place of the running call.
#pragma once

#include <atomic>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

#include "host/lisp/Heap.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/SymbolTable.h"

namespace lisp {

class Machine {
  public:
    Machine(Interpreter& interpreter, Limits limits);

    Interpreter& interpreter;
    Heap heap;
    SymbolTable symbols;

    // Stands at the start of each form that can nest or repeat: counts a step, refuses runaway recursion, and
    // is the only point at which objects are collected. Values held across it must be on the value stack or
    // in a Root.
    void step() {
        if (--m_fuel < 0) [[unlikely]]
            refuel();
        if (reinterpret_cast<uintptr_t>(__builtin_frame_address(0)) < m_stackEnd) [[unlikely]]
            tooDeep();
    }
    // The same check of depth for the recursion of reader, printer and analysis.
    void checkDepth() const {
        if (reinterpret_cast<uintptr_t>(__builtin_frame_address(0)) < m_stackEnd) [[unlikely]]
            tooDeep();
    }

    // The value stack: arguments of running calls, saved bindings, whatever must survive a step().
    Value* top() const { return m_top; }
    void push(Value value) {
        if (m_top == m_stackLimit) [[unlikely]]
            tooDeep();
        *m_top++ = value;
    }
    void popTo(Value* base) { m_top = base; }

    // Calls with the arguments from `base` to the top of the stack, and takes them off.
    Value call(Function* function, Value* base);
    // Evaluates a form, keeping its analysis.
    Value eval(Value form);
    // Reads and evaluates all forms of a text.
    Value evalText(std::u16string_view text, std::u16string_view name);
    // Reads all forms of a text; see Interpreter::readAll.
    Value readAll(std::u16string_view text, const SourceLine& place);
    // The function that a value stands for when it is called: itself, a symbol's or a lambda list. Else an
    // Error.
    Function* callable(Value value);

    // Notes what runs now, for error texts.
    void setCurrent(Place place, const Symbol* function) {
        m_place.store(uint64_t(place.file) << 32 | place.line, std::memory_order_relaxed);
        m_function = function;
    }
    Place currentPlace() const {
        uint64_t packed = m_place.load(std::memory_order_relaxed);
        return {uint32_t(packed >> 32), uint32_t(packed)};
    }
    void locate(Error& error) const;
    SourceLine lineOf(Place place) const;

    // Around each entry from C++: knows the shallowest, and puts the stack back after an exception.
    class Entry {
      public:
        explicit Entry(Machine& machine);
        ~Entry() { m_machine.m_top = m_top; }

      private:
        Machine& m_machine;
        Value* m_top;
    };

    void interrupt() { m_interrupted = true; }
    void clearInterrupt();
    void setCollectAlways(bool always);

  private:
    Value callLisp(Function* function, Value* base);
    uint32_t fileNumber(std::u16string_view name);
    void refuel();
    void collect();
    [[noreturn]] void tooDeep() const;

    int64_t m_fuel = 0;
    uintptr_t m_stackEnd = 0;
    Value* m_top;
    Value* m_stackLimit;
    std::atomic<uint64_t> m_place = 0;
    const Symbol* m_function = nullptr;

    Limits m_limits;
    uintptr_t m_stackStart = 0;
    uint64_t m_stepsLeft;
    int64_t m_chunk = 0;
    bool m_collectAlways = false;
    std::atomic<bool> m_interrupted = false;
    std::unique_ptr<Value[], decltype(&std::free)> m_stack;
    mutable std::mutex m_fileNamesLock;
    std::vector<std::u16string> m_fileNames;
};

}  // namespace lisp
