#include "src/shell/LispCall.h"

#include <cassert>
#include <exception>

#include "src/shell/LispInvoke.h"

LispCall::~LispCall() { assert(m_results == 1 || std::uncaught_exceptions() > 0); }

const HostValue* LispCall::next() {
    const HostValue* node = m_next;
    if (node) m_next = node->next;
    return node;
}

TileAddress LispCall::tile() {
    TileAddress address;
    const HostValue* node = next();
    if (node && node->type == HV_STRING) address.key = node->value.stringValue;
    if (node && node->type == HV_SHORT) address.id = static_cast<uint32_t>(node->value.shortValue);
    return address;
}

std::optional<CString> LispCall::text() {
    const HostValue* node = next();
    if (!node || node->type != HV_STRING) return std::nullopt;
    return CString(node->value.stringValue);
}

std::optional<int> LispCall::shortNumber() {
    const HostValue* node = next();
    if (!node || node->type != HV_SHORT) return std::nullopt;
    return node->value.shortValue;
}

void LispCall::retVoid() {
    setsResult();
    hostRetVoid();
}

void LispCall::retNil() {
    setsResult();
    hostRetNil();
}

void LispCall::retT() {
    setsResult();
    hostRetT();
}

void LispCall::ret(int number) {
    setsResult();
    hostRetInt(number);
}

void LispCall::ret(std::span<const int> numbers) {
    if (numbers.empty()) return retNil();
    setsResult();
    OwnedChain chain;
    for (size_t at = numbers.size(); at-- > 0;) {
        HostValue* rest = chain.release();
        chain.reset(hostBuildList(numbers[at] > INT16_MAX ? HV_LONG : HV_SHORT, numbers[at], 0));
        chain->next = rest;
    }
    hostRetList(chain.get());
}

void LispCall::ret(const CString& text) {
    setsResult();
    hostRetStr(text.c_str());
}
