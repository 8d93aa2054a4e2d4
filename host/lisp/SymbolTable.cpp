#include "host/lisp/SymbolTable.h"

#include "host/lisp/Text.h"

namespace lisp {

Symbol* SymbolTable::intern(std::u16string_view name) {
    std::u16string upper = upperCase(name);
    auto found = symbols_.find(upper);
    if (found != symbols_.end()) return found->second.get();
    auto symbol = std::make_unique<Symbol>();
    symbol->name = std::move(upper);
    Symbol* result = symbol.get();
    symbols_.emplace(result->name, std::move(symbol));
    return result;
}

Symbol* SymbolTable::find(std::u16string_view name) const {
    auto found = symbols_.find(upperCase(name));
    return found == symbols_.end() ? nullptr : found->second.get();
}

}  // namespace lisp
