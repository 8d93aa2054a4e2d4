// The Lisp of the reference host, as a program embeds it.
//
//     lisp::Interpreter lisp;
//     lisp.defineNative(u"twice", [](lisp::Call& call) { return lisp::Value::integer(2 * call.integer(0));
//     }); lisp.evalText(u"(princ (twice 21))", u"start-up");
//
// One thread uses an interpreter. Native functions may call back into it, to any depth.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/lisp/Call.h"
#include "host/lisp/Error.h"
#include "host/lisp/FileAccess.h"
#include "host/lisp/Value.h"

namespace lisp {

class Machine;
class Root;

struct Limits {
    // Bytes of C++ stack that nested Lisp calls may use, counted from the shallowest entry into the
    // interpreter; leave a reserve of some 64 KB for native functions. As many bytes again hold the arguments
    // and bindings of running calls. Deeper recursion is a Lisp error.
    size_t stackBytes = 1024 * 1024;
    // Bytes of Lisp objects; more is a Lisp error.
    size_t heapBytes = size_t(2) << 30;
    // Calls and loop turns until the program is Interrupted; 0 for no limit.
    uint64_t steps = 0;
};

// A line of a program.
struct SourceLine {
    std::u16string file;
    int line = 0;  // from 1; 0 where unknown

    // Such as `demo.lsp:12`; empty where the file is unknown.
    std::u16string text() const;
};

class Interpreter {
  public:
    explicit Interpreter(Limits limits = {});
    ~Interpreter();
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    // Making values. See Value for how long they live.
    Value string(std::u16string_view text);
    // The symbol of that name in any letter case; nil and T for their names.
    Value symbol(std::u16string_view name);
    Value cons(Value first, Value rest);
    Value list(std::span<const Value> elements);
    Value list(std::initializer_list<Value> elements);

    // Makes `name` a function, at least `minimum` and at most `maximum` arguments (-1: any number). The
    // function and `userData` must live as long as the definition.
    void defineNative(std::u16string_view name, NativeFunction function, void* userData = nullptr,
                      int minimum = 0, int maximum = -1);
    // Makes `name` nil again.
    void undefine(std::u16string_view name);
    void setSymbol(std::u16string_view name, Value value);
    Value getSymbol(std::u16string_view name);

    // The functions below throw Error (and what a native function throws). All variables are then as before
    // the call, but for what the program had set itself.

    // Evaluates a form. The analysis of a list is kept with it: a second time costs no parsing.
    Value eval(Value form);
    // Calls a function, the symbol of one, or a lambda list.
    Value call(Value function, std::span<const Value> arguments);
    // Calls the function of that name in any letter case; nothing where there is no such function.
    std::optional<Value> apply(std::u16string_view name, std::span<const Value> arguments);
    // Reads and evaluates all forms of `text`, whose first line is line 1 of `name`. The value of the last
    // one.
    Value evalText(std::u16string_view text, std::u16string_view name);
    // The same for a file: UTF-8 with or without mark, UTF-16 with mark, any line ends. An Error where it
    // can't be read. `name` is found through the FileAccess.
    Value loadFile(std::u16string_view name);
    Value loadPath(const std::filesystem::path& path);
    // The text of the file that loadFile would load.
    std::u16string fileText(std::u16string_view name) const;
    // The first form of a text, unevaluated; nil where there is none.
    Value read(std::u16string_view text);
    // The list of all forms of a text, unevaluated. All of it counts as written in the line of `place`; where
    // that is 0, as a file of that name.
    Value readAll(std::u16string_view text, const SourceLine& place);

    // Whether a prompt may evaluate `text`: no list and no string of it is still open.
    static bool isComplete(std::u16string_view text);

    // As princ and as prin1 write it.
    std::u16string display(Value value) const;
    std::u16string print(Value value) const;

    // Where princ and its kin write; standard output in UTF-8 by default.
    void setOutput(std::function<void(std::u16string_view)> output);
    void write(std::u16string_view text);
    // Null for the default.
    void setFileAccess(std::unique_ptr<FileAccess> access);
    const FileAccess& files() const { return *m_files; }

    // Stops the running program by an Interrupted error at its next step. May be called from any thread.
    void interrupt();
    // Forgets an interrupt that came too late, and starts counting steps anew.
    void clearInterrupt();
    // File and line of the call that runs or ran last. May be called from any thread.
    SourceLine place() const;
    // The same as two numbers, which cost nothing to take; and what they stand for.
    Place placeMark() const;
    SourceLine lineOf(Place mark) const;

    // For tests: collects at every step, so that a value that nothing keeps alive is seen at once.
    void setCollectAlways(bool always);
    size_t heapBytesInUse() const;

    // For the functions of the language itself.
    Machine& machine() { return *m_machine; }
    Root*& rootList();

  private:
    template <class Work>
    auto guarded(Work&& work);
    std::filesystem::path found(std::u16string_view name) const;

    std::unique_ptr<Machine> m_machine;
    std::unique_ptr<FileAccess> m_files;
    std::function<void(std::u16string_view)> m_output;
};

// Keeps a value alive while it exists, and is assignable. Must not outlive its interpreter.
class Root {
  public:
    explicit Root(Interpreter& lisp, Value value = {});
    ~Root();
    Root(const Root&) = delete;
    Root& operator=(const Root&) = delete;
    Root& operator=(Value value) {
        m_value = value;
        return *this;
    }

    Value get() const { return m_value; }
    operator Value() const { return m_value; }

  private:
    friend class Heap;
    Value m_value;
    Root* m_previous;
    Root* m_next;
    Root** m_first;
};

// Makes a list front to back, and keeps it alive meanwhile.
class ListBuilder {
  public:
    explicit ListBuilder(Interpreter& lisp) : m_lisp(lisp), m_list(lisp) {}
    void add(Value element) { addTail(element, true); }
    // Makes `rest` the tail of the list; nothing may be added after it.
    void finishWith(Value rest) { addTail(rest, false); }
    Value list() const { return m_list; }

  private:
    void addTail(Value value, bool asElement);

    Interpreter& m_lisp;
    Root m_list;
    Cons* m_last = nullptr;
};

}  // namespace lisp
