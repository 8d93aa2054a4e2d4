#include "src/shell/LispCall.h"

#include <algorithm>
#include <cassert>
#include <cwchar>
#include <exception>
#include <iterator>
#include <utility>

#include "src/LispSignatures.h"
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

std::optional<int> numberOf(const HostValue& node) {
    return node.type == HV_REAL ? truncated(node.value.realValue) : shortOrLongOf(node);
}

// T and nil.
std::optional<bool> truthOf(const HostValue& node) {
    if (node.type != HV_TRUE && node.type != HV_NIL) return std::nullopt;
    return node.type == HV_TRUE;
}

std::optional<WholePoint> pointOf(const HostValue& node) {
    if (node.type != HV_POINT) return std::nullopt;
    return WholePoint{truncated(node.value.pointValue[0]), truncated(node.value.pointValue[1])};
}

constexpr const wchar_t* STRING = L"a string";
constexpr const wchar_t* INTEGER = L"an integer";
constexpr const wchar_t* NUMBER = L"a number";
constexpr const wchar_t* TRUTH = L"T or nil";

CString shown(const HostValue& node) {
    switch (node.type) {
        case HV_SHORT:
        case HV_LONG:
            return std::to_wstring(*shortOrLongOf(node));
        case HV_REAL: {
            wchar_t text[32];
            _snwprintf(text, std::size(text), L"%g", node.value.realValue);
            const bool looksWhole =
                std::wstring_view(text).find_first_not_of(L"-0123456789") == CString::npos;
            return text + std::wstring(looksWhole ? L".0" : L"");
        }
        case HV_STRING:
            return quoted(stringOf(node).value_or(CString()));
        case HV_TRUE:
            return L"T";
        case HV_NIL:
            return L"nil";
        case HV_POINT:
        case HV_LIST_BEGIN:
            return L"a list";
        default:
            return L"a value of another kind";
    }
}

// Other values count as T or nil, and mostly as the other of them than was meant.
void warnUnlessFlag(const LispCall& call, const HostValue& node) {
    if (!shortOf(node) && !truthOf(node)) [[unlikely]]
        call.warnMistyped(node, L"T, nil or an integer");
}

// Nothing for a function that takes any number.
std::optional<int> mostArguments(int code) {
    const bool isKnown = code >= 0 && static_cast<size_t>(code) < std::size(LISP_SIGNATURES);
    const std::wstring_view signature = isKnown ? LISP_SIGNATURES[code] : L"…";
    if (signature.find(L'…') != std::wstring_view::npos) return std::nullopt;
    return static_cast<int>(std::count(signature.begin(), signature.end(), L' '));
}

}  // namespace

LispCall::~LispCall() {
    assert(m_results == 1 || std::uncaught_exceptions() > 0);
    if (m_next) [[unlikely]]
        warnUnused();
}

void LispCall::warnUnused() {
    const int given = argumentNumber(nullptr) - 1;
    const auto most = mostArguments(hostGetFunCode());
    if (most && given > *most)
        warn(WARN_UNUSED_ARGUMENT, [&] {
            return L"of " + std::to_wstring(given) + L" arguments it takes " + std::to_wstring(*most);
        });
}

const HostValue* LispCall::next() {
    const HostValue* node = m_next;
    m_last = node;
    if (node)
        m_next = node->next;
    else
        m_lacksArgument = true;
    return node;
}

const HostValue* LispCall::rest() { return std::exchange(m_next, nullptr); }

int LispCall::argumentNumber(const HostValue* node) {
    int number = 0, depth = 0;
    for (const HostValue* at = hostGetArgs(); at; at = at->next) {
        if (at->type == HV_LIST_END) --depth;
        if (depth == 0 && at->type != HV_LIST_END) ++number;
        if (at->type == HV_LIST_BEGIN) ++depth;
        if (at == node) return number;
    }
    return number + 1;
}

void LispCall::warnMissing() const {
    const int number = argumentNumber(nullptr);
    warn(WARN_ARGUMENT + number, [=] { return L"argument " + std::to_wstring(number) + L" is missing"; });
}

void LispCall::warnMistyped(const HostValue& node, const wchar_t* expected) const {
    const int number = argumentNumber(&node);
    warn(WARN_ARGUMENT + number, [&] {
        const bool isTooLarge = node.type == HV_LONG && expected == INTEGER;
        return L"argument " + std::to_wstring(number) + L": expected " +
               (isTooLarge ? L"an integer from -32768 to 32767" : expected) + L", got " + shown(node);
    });
}

TileAddress LispCall::tile() {
    TileAddress address;
    const HostValue* node = next();
    if (!node) return address;
    if (const wchar_t* key = textOf(*node)) address.key = key;
    if (const auto id = shortOf(*node)) address.id = static_cast<uint32_t>(*id);
    if (!address.isById() && address.key.IsEmpty()) [[unlikely]]
        warnMistyped(*node, L"the key or the id of a tile");
    return address;
}

std::optional<CString> LispCall::text() { return read(stringOf, STRING); }

std::optional<CString> LispCall::optionalText() { return read(stringOf, STRING, Need::optional); }

CString LispCall::textOrDecimal() {
    const HostValue* node = next();
    if (!node) return {};
    if (const auto number = shortOrLongOf(*node)) return std::to_wstring(*number);
    const auto text = stringOf(*node);
    if (!text) warnMistyped(*node, L"a string or an integer");
    return text.value_or(CString());
}

void LispCall::warnNoText(const HostValue& node) const {
    warnOfArgument([&] { return shown(node) + L" in the list is no string: the list ends before it"; });
}

std::vector<CString> LispCall::listTexts() {
    std::vector<CString> texts;
    const HostValue* node = next();
    if (!node) return texts;
    if (node->type == HV_LIST_BEGIN)
        forEachElement([&](const wchar_t* text) { texts.emplace_back(text); });
    else if (node->type != HV_NIL)
        warnMistyped(*node, L"a list of strings");
    return texts;
}

std::optional<int> LispCall::shortNumber() { return read(shortOf, INTEGER); }

std::optional<int> LispCall::optionalShort() { return read(shortOf, INTEGER, Need::optional); }

std::optional<int> LispCall::shortOrLong() { return read(shortOrLongOf, INTEGER); }

int LispCall::shortOrLongOr(int otherwise) {
    return read(shortOrLongOf, INTEGER, Need::optional).value_or(otherwise);
}

std::optional<int> LispCall::shortOrReal() { return read(shortOrRealOf, NUMBER); }

int LispCall::wholeNumber() { return read(numberOf, NUMBER).value_or(0); }

std::optional<WholePoint> LispCall::point() {
    const HostValue* node = next();
    return node ? pointOf(*node) : std::nullopt;
}

bool LispCall::isTrue() { return read(truthOf, TRUTH).value_or(false); }

bool LispCall::isTrueOrShort() {
    const HostValue* node = next();
    if (!node) return false;
    warnUnlessFlag(*this, *node);
    return node->type == HV_TRUE || node->type == HV_SHORT;
}

bool LispCall::isTrueOrNotZero() {
    const HostValue* node = next();
    if (!node) return false;
    warnUnlessFlag(*this, *node);
    const auto number = shortOf(*node);
    return number ? *number != 0 : node->type == HV_TRUE;
}

bool LispCall::isThereAndNotNil() {
    const HostValue* node = next();
    if (node) warnUnlessFlag(*this, *node);
    return node && node->type != HV_NIL;
}

bool LispCall::isNeitherNilNorZero() {
    const HostValue* node = next();
    if (node) warnUnlessFlag(*this, *node);
    return !node || (node->type != HV_NIL && shortOf(*node) != 0);
}

bool LispCall::isOneOrNoNumber() {
    const HostValue* node = next();
    if (node) warnUnlessFlag(*this, *node);
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
