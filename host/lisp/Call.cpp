#include "host/lisp/Call.h"

#include "host/lisp/Interpreter.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Text.h"

namespace lisp {

int32_t Call::integer(size_t index) const {
    if (!(*this)[index].isInteger()) expected(index, "an integer");
    return arguments[index].asInteger();
}

double Call::number(size_t index) const {
    if (!(*this)[index].isNumber()) expected(index, "a number");
    return arguments[index].asNumber();
}

const std::u16string& Call::text(size_t index) const {
    if (!(*this)[index].isString()) expected(index, "a string");
    return arguments[index].asString();
}

Value Call::list(size_t index) const {
    if (!(*this)[index].isList()) expected(index, "a list");
    return (*this)[index];
}

Value Call::symbol(size_t index) const {
    if (!(*this)[index].isSymbol()) expected(index, "a symbol");
    return arguments[index];
}

int32_t Call::integerOr(size_t index, int32_t otherwise) const {
    return (*this)[index].isNil() ? otherwise : integer(index);
}

void Call::expected(size_t index, const char* what) const {
    std::u16string came = has(index) ? abbreviated(lisp.machine(), arguments[index]) : u"nothing";
    throw Error(u"expected " + fromUtf8(what) + u", got " + came, int(index) + 1);
}

}  // namespace lisp
