#include "host/lisp/Value.h"

#include "host/lisp/Objects.h"

namespace lisp {

const std::u16string& Value::asString() const { return asStringObject()->text; }

std::u16string_view Value::symbolName() const {
    return isTruth() ? std::u16string_view(u"T") : asSymbol()->name;
}

Value Value::car() const { return isCons() ? asCons()->car : nil(); }
Value Value::cdr() const { return isCons() ? asCons()->cdr : nil(); }

}  // namespace lisp
