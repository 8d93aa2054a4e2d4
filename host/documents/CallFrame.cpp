#include "host/documents/CallFrame.h"

#include <algorithm>
#include <exception>

#include "host/documents/Plugin.h"
#include "host/services/Crossing.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

int32_t run(const PluginFunction& function) {
    if (function.handler) return function.handler();
    if (!function.plugin) throw lisp::Error(u"no handler is bound to this function");
    function.plugin->send(PLUGIN_INVOKE_FUNCTION);
    return 0;
}

}  // namespace

CallFrame::CallFrame(lisp::Interpreter& lisp, const std::wstring& name, const PluginFunction& function,
                     std::span<const lisp::Value> arguments)
    : m_lisp(lisp),
      m_name(name),
      m_place(lisp.placeMark()),
      m_function(function),
      m_arguments(arguments),
      m_outer(s_current),
      m_result(lisp) {
    s_current = this;
}

bool CallFrame::isRunning(const Plugin* plugin) {
    for (const CallFrame* frame = s_current; frame; frame = frame->m_outer) {
        if (frame->m_function.plugin == plugin) return true;
    }
    return false;
}

HostValue* CallFrame::arguments() {
    if (!m_chain) m_chain = chainOf(m_arguments, &m_memory);
    return m_chain;
}

lisp::Value CallFrame::result(int32_t status) const {
    if (m_hasResult) return m_result;
    return status == RESULT_SET ? lisp::Value::none() : lisp::Value::nil();
}

lisp::Value callPluginFunction(lisp::Call& call) {
    const auto& function = *static_cast<const LispFunction*>(call.userData);
    if (function.definitions.empty()) {
        throw lisp::Error(u"no plug-in defines " + lispText(function.name) + u" any more");
    }
    const PluginFunction newest = function.definitions.back();
    CallFrame frame(call.lisp, function.name, newest, call.arguments);
    if (Actions::isBinding(function.name)) {
        host().actions().note(function.name, frame.arguments(), call.lisp.place());
    }
    // Anything may come out of a module that was built elsewhere; Lisp knows its own errors only.
    try {
        // A list that is refused is Lisp's error: the plug-in would take it for a call without arguments.
        if (std::any_of(call.arguments.begin(), call.arguments.end(), [](auto v) { return v.isCons(); })) {
            frame.arguments();
        }
        return frame.result(run(newest));
    } catch (const lisp::Error&) {
        throw;
    } catch (const std::exception& error) {
        throw lisp::Error(lispText(wideFromUtf8(error.what())));
    } catch (...) {
        throw lisp::Error(u"the plug-in's function failed: an exception of an unknown kind");
    }
}
