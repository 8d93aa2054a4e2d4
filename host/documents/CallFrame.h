// One call of a plug-in's Lisp function: which function, its arguments, its result. Frames nest as calls do.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <span>
#include <string>
#include <vector>

#include "host/lisp/Interpreter.h"
#include "host/services/ValueChain.h"
#include "src/platform/host/HostLisp.h"

class Plugin;

// What one plug-in made of a Lisp name.
struct PluginFunction {
    Plugin* plugin;  // null where the host itself was asked to define it
    int code;
    HostLispFunction handler;  // null: the plug-in is sent message 5
};

// A Lisp name that plug-ins define. It stays when they are gone, since a program may have kept the function.
struct LispFunction {
    std::wstring name;
    // One of each plug-in, oldest first. The newest is called.
    std::vector<PluginFunction> definitions;
};

class CallFrame {
  public:
    // `name` and `arguments` must outlive the frame.
    CallFrame(lisp::Interpreter& lisp, const std::wstring& name, const PluginFunction& function,
              std::span<const lisp::Value> arguments);
    ~CallFrame() { s_current = m_outer; }
    CallFrame(const CallFrame&) = delete;
    CallFrame& operator=(const CallFrame&) = delete;

    // The innermost call; null outside of any.
    static CallFrame* current() { return s_current; }
    // Whether a function of `plugin` is being called.
    static bool isRunning(const Plugin* plugin);

    // Of the Lisp function, and where it was called.
    const std::wstring& name() const { return m_name; }
    lisp::Place place() const { return m_place; }
    int code() const { return m_function.code; }
    Plugin* plugin() const { return m_function.plugin; }
    // Made at the first question, since many functions ask for none. Throws lisp::Error for a list that is
    // nested too deeply.
    HostValue* arguments();
    lisp::Interpreter& lisp() const { return m_lisp; }
    void setResult(lisp::Value result) {
        m_result = result;
        m_hasResult = true;
    }
    // What the call gives: the last result that was set; without one no value where `status` says that there
    // is one, otherwise nil.
    lisp::Value result(int32_t status) const;

  private:
    static inline CallFrame* s_current = nullptr;

    lisp::Interpreter& m_lisp;
    const std::wstring& m_name;
    lisp::Place m_place;
    PluginFunction m_function;
    std::span<const lisp::Value> m_arguments;
    CallFrame* m_outer;
    // The nodes and texts of most calls lie here, those of the others in a few blocks.
    std::byte m_nodes[512];
    std::pmr::monotonic_buffer_resource m_memory{m_nodes, sizeof m_nodes};
    HostValue* m_chain = nullptr;
    lisp::Root m_result;
    bool m_hasResult = false;
};

// The native function behind every name that a plug-in defines; its user data is the LispFunction.
lisp::Value callPluginFunction(lisp::Call& call);
