#include "host/lisp/SymbolTable.h"

#include "host/lisp/Text.h"

namespace lisp {

Symbol* SymbolTable::intern(std::u16string_view name) {
    std::u16string upper = upperCase(name);
    auto found = m_symbols.find(upper);
    if (found != m_symbols.end()) return found->second.get();
    auto symbol = std::make_unique<Symbol>();
    symbol->name = std::move(upper);
    Symbol* result = symbol.get();
    m_symbols.emplace(result->name, std::move(symbol));
    return result;
}

Symbol* SymbolTable::find(std::u16string_view name) const {
    auto found = m_symbols.find(upperCase(name));
    return found == m_symbols.end() ? nullptr : found->second.get();
}

}  // namespace lisp
