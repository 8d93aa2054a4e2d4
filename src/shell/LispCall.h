// The frame of a Lisp function: resource scope, argument chain, one result.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "src/platform/base/CInvalidArgException.h"
#include "src/platform/base/CString.h"
#include "src/platform/host/HostLisp.h"
#include "src/shell/ResourceScope.h"
#include "src/shell/Warning.h"

// How a tile is named: by key or by control id.
struct TileAddress {
    static constexpr uint32_t NO_ID = 0xFFFFFFFF;

    CString key;
    uint32_t id = NO_ID;

    bool isById() const { return id < NO_ID; }
    int controlId() const { return static_cast<int>(id); }
};

struct WholePoint {
    int32_t x;
    int32_t y;
};

// The argument chain of one Lisp call and its result. An argument is one node: a list's begin, elements and
// end count as one each. Every reader takes the next node, whatever it holds, and bears the name of its rule.
// The author is told of a node that a reader can't use; nil is fine for an argument that may be left out.
class LispCall {
  public:
    LispCall() : m_next(hostGetArgs()) {}
    ~LispCall();
    LispCall(const LispCall&) = delete;
    LispCall& operator=(const LispCall&) = delete;

    bool hasArguments() const { return m_next; }

    // The next node, and null past the last one. The host's.
    const HostValue* next();
    // Whether a reader asked for a node past the last one. A function that needs an argument asks this once
    // it has read it: one of a wrong type is there, too. The author is told.
    bool lacksArgument() const {
        if (m_lacksArgument) [[unlikely]]
            warnMissing();
        return m_lacksArgument;
    }
    // The same of an argument that may be left out.
    bool isPastEnd() const { return m_lacksArgument; }
    // All nodes that are left, for a function that reads them itself.
    const HostValue* rest();
    // Tells the author that an argument is missing behind the last one.
    void warnMissing() const;
    // Tells the author that an argument isn't what the function takes. `expected` such as "a string".
    void warnMistyped(const HostValue& node, const wchar_t* expected) const;
    // Tells of the argument that was read last: `words` go on after its number.
    template <class Words>
    void warnOfArgument(Words words) const {
        warn(WARN_ARGUMENT + argumentNumber(m_last),
             [&] { return L"argument " + std::to_wstring(argumentNumber(m_last)) + L": " + words(); });
    }

    // A string is a key and a short a control id; any other node is an empty key without an id, and so is -1.
    TileAddress tile();

    // The text of a string; nothing for any other node.
    std::optional<CString> text();
    std::optional<CString> optionalText();
    CString textOrEmpty() { return text().value_or(CString()); }
    // A string as it stands, a short or a long in decimal; empty for any other node.
    CString textOrDecimal();
    // `use` gets one string, or each of a list up to the first element that is none. The host's.
    template <class Use>
    void forEachText(Use use) {
        const HostValue* node = next();
        if (!node) return;
        if (node->type == HV_LIST_BEGIN)
            forEachElement(use);
        else if (node->type == HV_STRING)
            use(node->value.stringValue);
        else if (node->type != HV_NIL)
            warnMistyped(*node, L"a string or a list of strings");
    }
    // The strings of a list up to the first element that is none; none for any other node.
    std::vector<CString> listTexts();

    // The number of a short; nothing for any other node.
    std::optional<int> shortNumber();
    std::optional<int> optionalShort();
    int shortOr(int otherwise) { return optionalShort().value_or(otherwise); }
    std::optional<int> shortOrLong();
    int shortOrLongOr(int otherwise);
    // A real is truncated.
    std::optional<int> shortOrReal();
    // A short, a long, or a real truncated; 0 for any other node.
    int wholeNumber();
    // Both numbers truncated; nothing for any other node, of which nobody is told.
    std::optional<WholePoint> point();

    // T itself, and nothing else.
    bool isTrue();
    // T, or a short of any value.
    bool isTrueOrShort();
    // T, or a short that isn't 0.
    bool isTrueOrNotZero();
    // Anything but nil; a missing node isn't there.
    bool isThereAndNotNil();
    // Anything but nil and 0; a missing node too.
    bool isNeitherNilNorZero();
    // The short 1, T, or any other node that is neither a short nor nil; false past the last one.
    bool isOneOrNoNumber();

    // The call sets no result, which the host takes for no value.
    void retNone() { setsResult(); }
    void retVoid();
    void retNil();
    void retT();
    void ret(int number);
    // A number that a later result of the same call replaces.
    void retForNow(int number);
    // A node of type HV_LONG, whatever the number.
    void retLong(int32_t number);
    void ret(const CString& text);
    // A list; nil for none.
    void ret(std::span<const int> numbers);
    // The elements of the chain, which remains the caller's, as a list; nil for none.
    void retList(const HostValue* chain);

  private:
    void setsResult() { ++m_results; }

    enum class Need { required, optional };

    // What `convert` makes of the next node; nothing past the last one.
    template <class Value>
    std::optional<Value> read(std::optional<Value> (*convert)(const HostValue& node), const wchar_t* expected,
                              Need need = Need::required) {
        const HostValue* node = next();
        if (!node) {
            if (need == Need::required) warnMissing();
            return std::nullopt;
        }
        const std::optional<Value> value = convert(*node);
        if (!value && !(need == Need::optional && node->type == HV_NIL)) [[unlikely]]
            warnMistyped(*node, expected);
        return value;
    }

    // The number of the argument that the node is or begins, from 1; of null, of the one behind the last.
    static int argumentNumber(const HostValue* node);
    // Tells the author of more arguments than the function takes.
    static void warnUnused();
    // Within a list, each string up to its end, or to the first element that is none.
    template <class Use>
    void forEachElement(Use use) {
        const HostValue* node;
        while ((node = next()) && node->type == HV_STRING) use(node->value.stringValue);
        if (node && node->type != HV_LIST_END) [[unlikely]]
            warnNoText(*node);
    }
    void warnNoText(const HostValue& node) const;

    const HostValue* m_next;
    const HostValue* m_last = nullptr;
    bool m_lacksArgument = false;
    int m_results = 0;
};

// The entry function around an implementation: without arguments it shows the alert and gives no value. A
// call that ends with CInvalidArgException gives no value either.
template <void (*Body)(LispCall&)>
int32_t withArguments() {
    const ResourceScope scope;
    LispCall call;
    if (!call.hasArguments()) {
        alertText(TEXT_NO_ARGUMENTS);
        call.retVoid();
        return RESULT_SET;
    }
    try {
        Body(call);
    } catch (const CInvalidArgException&) {
        call.retVoid();
    }
    return RESULT_SET;
}

// The entry function around an implementation that does with or without arguments, and shows no texts.
template <void (*Body)(LispCall&)>
int32_t withAnyArguments() {
    LispCall call;
    Body(call);
    return RESULT_SET;
}
