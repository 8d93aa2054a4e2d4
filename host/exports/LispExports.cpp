// The exports of HostLisp.h. None lets an exception out: the plug-in has a run-time of its own.
#include "src/platform/host/HostLisp.h"

#include <cstdarg>

#include "host/documents/CallFrame.h"
#include "host/documents/Documents.h"
#include "host/services/Crossing.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

constexpr int LISP_ERROR = 1;

// Tells an error, and the action in which it came up.
void report(const std::exception& error) {
    const std::wstring action = host().actions().running();
    host().console().error((action.empty() ? L"" : action + L"\n  ") + wideFromUtf8(error.what()));
    host().fail(LISP_ERROR);
}

// HOST_NORMAL where `work` gives true; HOST_ERROR where it gives false or fails.
template <class Work>
int statusOf(Work&& work) noexcept {
    try {
        return work() ? HOST_NORMAL : HOST_ERROR;
    } catch (const std::exception& error) {
        report(error);
        return HOST_ERROR;
    }
}

template <class Make>
auto madeOrNull(Make&& make) noexcept -> decltype(make()) {
    try {
        return make();
    } catch (const std::exception& error) {
        report(error);
        return nullptr;
    }
}

// Sets the result of the call at hand to what `make` makes of its interpreter.
template <class Make>
int setResult(Make&& make) noexcept {
    return statusOf([&] {
        CallFrame* frame = CallFrame::current();
        if (frame) frame->setResult(make(frame->lisp()));
        return frame != nullptr;
    });
}

const wchar_t* nameOf(const HostValue* chain) {
    return chain && chain->type == HV_STRING ? chain->value.stringValue : L"";
}

bool invoke(const HostValue* chain, HostValue*& result) {
    if (!chain || chain->type != HV_STRING || result) return false;
    lisp::Interpreter& lisp = host().lisp();
    const lisp::Root list(lisp, listOfChain(lisp, chain->next));
    std::vector<lisp::Value> arguments;
    for (const lisp::Value argument : lisp::Elements(list)) arguments.push_back(argument);
    const std::optional<lisp::Value> value = lisp.apply(lispText(chain->value.stringValue), arguments);
    if (!value) return false;
    if (!value->isNone()) result = chainOf({&*value, 1});
    return true;
}

}  // namespace

int hostDefun(const wchar_t* name, int code) {
    return statusOf([&] { return name && documents().define(name, code); });
}

int hostRegFunc(HostLispFunction handler, int code) {
    return statusOf([&] { return documents().bind(handler, code); });
}

int hostUndef(const wchar_t* name, int) {
    return statusOf([&] { return name && documents().undefine(name); });
}

int hostGetFunCode() {
    const CallFrame* frame = CallFrame::current();
    return frame ? frame->code() : -1;
}

HostValue* hostGetArgs() {
    return madeOrNull([]() -> HostValue* {
        CallFrame* frame = CallFrame::current();
        return frame ? frame->arguments() : nullptr;
    });
}

int hostRetVoid() {
    return setResult([](auto&) { return lisp::Value::none(); });
}

int hostRetNil() {
    return setResult([](auto&) { return lisp::Value::nil(); });
}

int hostRetT() {
    return setResult([](auto&) { return lisp::Value::truth(); });
}

int hostRetInt(int32_t number) {
    return setResult([=](auto&) { return lisp::Value::integer(number); });
}

int hostRetStr(const wchar_t* text) {
    return setResult([=](lisp::Interpreter& lisp) { return lisp.string(lispText(text ? text : L"")); });
}

int hostRetList(const HostValue* chain) {
    return setResult([=](lisp::Interpreter& lisp) { return listOfChain(lisp, chain); });
}

int hostRetVal(const HostValue* node) {
    return setResult([=](lisp::Interpreter& lisp) {
        // A list's begin takes the chain behind it; any other node stands alone.
        if (!node || node->type == HV_LIST_BEGIN) return valueOfChain(lisp, node);
        HostValue alone = *node;
        alone.next = nullptr;
        return valueOfChain(lisp, &alone);
    });
}

HostValue* hostBuildList(int type, ...) {
    va_list rest;
    va_start(rest, type);
    HostValue* chain = madeOrNull([&] { return buildChain(type, rest); });
    va_end(rest);
    return chain;
}

HostValue* hostNewRb(int type) {
    return madeOrNull([=] { return newNode(type); });
}

void hostRelRb(HostValue* chain) { releaseChain(chain); }

wchar_t* hostNewString(const wchar_t* source, wchar_t** destination) {
    wchar_t* copy = madeOrNull([=] { return newNodeText(source ? source : L""); });
    if (destination) *destination = copy;
    return copy;
}

void* hostAlloc(size_t bytes) {
    return madeOrNull([=] { return newNodeMemory(bytes); });
}

int hostPutSym(const wchar_t* name, const HostValue* chain) {
    return statusOf([&] {
        if (!name || !*name) return false;
        lisp::Interpreter& lisp = host().lisp();
        lisp.setSymbol(lispText(name), valueOfChain(lisp, chain));
        return true;
    });
}

int hostInvoke(const HostValue* chain, HostValue** result) {
    const Actions::Run action(host().actions(), nameOf(chain));
    return statusOf([&] {
        HostValue* value = nullptr;
        if (result && *result) return false;
        const bool done = invoke(chain, value);
        if (result) {
            *result = value;
        } else {
            releaseChain(value);
        }
        return done;
    });
}
