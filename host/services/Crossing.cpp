#include "host/services/Crossing.h"

#include <limits>

#include "host/services/Texts.h"

namespace {

// Deeper nesting would cost stack in proportion. The message of the error has the number too.
constexpr int DEEPEST_LIST = 1000;

void appendValue(ChainBuilder& chain, lisp::Value value, int depth);

bool isPoint(lisp::Value list) {
    const lisp::Value rest = list.cdr();
    return list.car().isReal() && rest.isCons() && rest.car().isReal() && rest.cdr().isNil();
}

void appendInteger(ChainBuilder& chain, int32_t number) {
    using Short = std::numeric_limits<int16_t>;
    if (number >= Short::min() && number <= Short::max()) {
        chain.append(HV_SHORT).value.shortValue = static_cast<int16_t>(number);
    } else {
        chain.append(HV_LONG).value.longValue = number;
    }
}

void appendList(ChainBuilder& chain, lisp::Value list, int depth) {
    if (isPoint(list)) {
        HostValue& node = chain.append(HV_POINT);
        node.value.pointValue[0] = list.car().asReal();
        node.value.pointValue[1] = list.cdr().car().asReal();
        return;
    }
    if (depth >= DEEPEST_LIST) throw lisp::Error(u"a list is nested deeper than 1,000");
    chain.append(HV_LIST_BEGIN);
    for (; list.isCons(); list = list.cdr()) appendValue(chain, list.car(), depth + 1);
    if (!list.isNil()) appendValue(chain, list, depth + 1);
    chain.append(HV_LIST_END);
}

void appendValue(ChainBuilder& chain, lisp::Value value, int depth) {
    if (value.isInteger()) {
        appendInteger(chain, value.asInteger());
    } else if (value.isReal()) {
        chain.append(HV_REAL).value.realValue = value.asReal();
    } else if (value.isString()) {
        chain.appendText(std::u16string_view(value.asString()));
    } else if (value.isTruth()) {
        chain.append(HV_TRUE);
    } else if (value.isCons()) {
        appendList(chain, value, depth);
    } else if (value.isSymbol()) {
        chain.appendText(value.symbolName());
    } else {
        chain.append(HV_NIL);
    }
}

lisp::Value valueOfNode(lisp::Interpreter& lisp, const HostValue& node) {
    switch (node.type) {
        case HV_SHORT:
            return lisp::Value::integer(node.value.shortValue);
        case HV_LONG:
            return lisp::Value::integer(node.value.longValue);
        case HV_REAL:
        case HV_ANGLE:
        case HV_ORIENT:
            return lisp::Value::real(node.value.realValue);
        case HV_POINT:
            return lisp.list(
                {lisp::Value::real(node.value.pointValue[0]), lisp::Value::real(node.value.pointValue[1])});
        case HV_STRING:
            return lisp.string(lispText(node.value.stringValue ? node.value.stringValue : L""));
        case HV_TRUE:
            return lisp::Value::truth();
        default:
            return lisp::Value::nil();
    }
}

// Adds the elements up to the end of their list, or of the chain, and leaves `at` there.
void appendElements(lisp::Interpreter& lisp, lisp::ListBuilder& list, const HostValue*& at) {
    for (; at && at->type != HV_LIST_END; at = at->next) {
        if (at->type != HV_LIST_BEGIN) {
            list.add(valueOfNode(lisp, *at));
            continue;
        }
        lisp::ListBuilder nested(lisp);
        at = at->next;
        appendElements(lisp, nested, at);
        list.add(nested.list());
        if (!at) return;
    }
}

}  // namespace

HostValue* chainOf(std::span<const lisp::Value> values, std::pmr::memory_resource* memory) {
    ChainBuilder chain(memory);
    for (const lisp::Value value : values) appendValue(chain, value, 0);
    return chain.take();
}

lisp::Value listOfChain(lisp::Interpreter& lisp, const HostValue* chain) {
    lisp::ListBuilder list(lisp);
    for (; chain; chain = chain->next) {
        // The rest behind an end that nothing opened counts all the same.
        appendElements(lisp, list, chain);
        if (!chain) break;
    }
    return list.list();
}

lisp::Value valueOfChain(lisp::Interpreter& lisp, const HostValue* chain) {
    const lisp::Value list = listOfChain(lisp, chain);
    return list.isCons() && list.cdr().isNil() ? list.car() : list;
}
