#include "src/shell/LispCall.h"

#include <cassert>
#include <exception>

#include "src/shell/HostNumber.h"
#include "src/shell/LispInvoke.h"
#include "src/shell/ValueOf.h"

namespace {

std::optional<CString> stringOf(const HostValue& node) {
    const wchar_t* text = textOf(node);
    return text ? std::optional<CString>(text) : std::nullopt;
}

std::optional<int> shortOrLongOf(const HostValue& node) {
    return node.type == HV_LONG ? node.value.longValue : shortOf(node);
}

std::optional<int> shortOrRealOf(const HostValue& node) {
    return node.type == HV_REAL ? truncated(node.value.realValue) : shortOf(node);
}

std::optional<WholePoint> pointOf(const HostValue& node) {
    if (node.type != HV_POINT) return std::nullopt;
    return WholePoint{truncated(node.value.pointValue[0]), truncated(node.value.pointValue[1])};
}

}  // namespace

LispCall::~LispCall() { assert(m_results == 1 || std::uncaught_exceptions() > 0); }

const HostValue* LispCall::next() {
    const HostValue* node = m_next;
    if (node)
        m_next = node->next;
    else
        m_lacksArgument = true;
    return node;
}

TileAddress LispCall::tile() {
    TileAddress address;
    const HostValue* node = next();
    if (!node) return address;
    if (const wchar_t* key = textOf(*node)) address.key = key;
    if (const auto id = shortOf(*node)) address.id = static_cast<uint32_t>(*id);
    return address;
}

std::optional<CString> LispCall::text() { return read(stringOf); }

CString LispCall::textOrDecimal() {
    const HostValue* node = next();
    if (!node) return {};
    if (const auto number = shortOrLongOf(*node)) return std::to_wstring(*number);
    return stringOf(*node).value_or(CString());
}

std::vector<CString> LispCall::texts() {
    std::vector<CString> texts;
    const HostValue* node = next();
    const bool isList = node && node->type == HV_LIST_BEGIN;
    if (isList) node = next();
    for (; node && node->type == HV_STRING; node = isList ? next() : nullptr)
        texts.emplace_back(node->value.stringValue);
    return texts;
}

std::vector<CString> LispCall::listTexts() {
    std::vector<CString> texts;
    const HostValue* node = next();
    if (!node || node->type != HV_LIST_BEGIN) return texts;
    while ((node = next()) && node->type == HV_STRING) texts.emplace_back(node->value.stringValue);
    return texts;
}

std::optional<int> LispCall::shortNumber() { return read(shortOf); }

std::optional<int> LispCall::shortOrLong() { return read(shortOrLongOf); }

std::optional<int> LispCall::shortOrReal() { return read(shortOrRealOf); }

int LispCall::wholeNumber() {
    const HostValue* node = next();
    if (!node) return 0;
    return node->type == HV_REAL ? truncated(node->value.realValue) : shortOrLongOf(*node).value_or(0);
}

std::optional<WholePoint> LispCall::point() { return read(pointOf); }

bool LispCall::isTrue() {
    const HostValue* node = next();
    return node && node->type == HV_TRUE;
}

bool LispCall::isTrueOrShort() {
    const HostValue* node = next();
    return node && (node->type == HV_TRUE || node->type == HV_SHORT);
}

bool LispCall::isTrueOrNotZero() {
    const HostValue* node = next();
    return node && (node->type == HV_TRUE || shortOf(*node).value_or(0) != 0);
}

bool LispCall::isThereAndNotNil() {
    const HostValue* node = next();
    return node && node->type != HV_NIL;
}

bool LispCall::isNeitherNilNorZero() {
    const HostValue* node = next();
    return !node || (node->type != HV_NIL && shortOf(*node) != 0);
}

bool LispCall::isOneOrNoNumber() {
    const HostValue* node = next();
    return node && node->type != HV_NIL && shortOf(*node).value_or(1) == 1;
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

void LispCall::retForNow(int number) { hostRetInt(number); }

void LispCall::retLong(int32_t number) {
    setsResult();
    HostValue node{};
    node.type = HV_LONG;
    node.value.longValue = number;
    hostRetVal(&node);
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

void LispCall::retList(const HostValue* chain) {
    setsResult();
    hostRetList(chain);
}

void LispCall::ret(const CString& text) {
    setsResult();
    hostRetStr(text.c_str());
}
