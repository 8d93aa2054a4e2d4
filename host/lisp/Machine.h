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
        if (--fuel_ < 0) [[unlikely]]
            refuel();
        if (reinterpret_cast<uintptr_t>(__builtin_frame_address(0)) < stackEnd_) [[unlikely]]
            tooDeep();
    }
    // The same check of depth for the recursion of reader, printer and analysis.
    void checkDepth() const {
        if (reinterpret_cast<uintptr_t>(__builtin_frame_address(0)) < stackEnd_) [[unlikely]]
            tooDeep();
    }

    // The value stack: arguments of running calls, saved bindings, whatever must survive a step().
    Value* top() const { return top_; }
    void push(Value value) {
        if (top_ == stackLimit_) [[unlikely]]
            tooDeep();
        *top_++ = value;
    }
    void popTo(Value* base) { top_ = base; }

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
        place_.store(uint64_t(place.file) << 32 | place.line, std::memory_order_relaxed);
        function_ = function;
    }
    Place currentPlace() const {
        uint64_t packed = place_.load(std::memory_order_relaxed);
        return {uint32_t(packed >> 32), uint32_t(packed)};
    }
    void locate(Error& error) const;
    SourceLine place() const;

    // Around each entry from C++: knows the shallowest, and puts the stack back after an exception.
    class Entry {
      public:
        explicit Entry(Machine& machine);
        ~Entry() { machine_.top_ = top_; }

      private:
        Machine& machine_;
        Value* top_;
    };

    void interrupt() { interrupted_ = true; }
    void clearInterrupt();
    void setCollectAlways(bool always);

  private:
    Value callLisp(Function* function, Value* base);
    uint32_t fileNumber(std::u16string_view name);
    void refuel();
    void collect();
    [[noreturn]] void tooDeep() const;

    int64_t fuel_ = 0;
    uintptr_t stackEnd_ = 0;
    Value* top_;
    Value* stackLimit_;
    std::atomic<uint64_t> place_ = 0;
    const Symbol* function_ = nullptr;

    Limits limits_;
    uintptr_t stackStart_ = 0;
    uint64_t stepsLeft_;
    int64_t chunk_ = 0;
    bool collectAlways_ = false;
    std::atomic<bool> interrupted_ = false;
    std::unique_ptr<Value[], decltype(&std::free)> stack_;
    mutable std::mutex fileNamesLock_;
    std::vector<std::u16string> fileNames_;
};

}  // namespace lisp
