// Symbols by name. A symbol lives as long as its table.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/lisp/Objects.h"

namespace lisp {

class SymbolTable {
  public:
    // The symbol of that name in any letter case.
    Symbol* intern(std::u16string_view name);
    // The same, or null where no one has mentioned the name yet.
    Symbol* find(std::u16string_view name) const;

    auto begin() const { return m_symbols.begin(); }
    auto end() const { return m_symbols.end(); }
    size_t size() const { return m_symbols.size(); }

  private:
    // The keys view the names of their symbols.
    std::unordered_map<std::u16string_view, std::unique_ptr<Symbol>> m_symbols;
};

}  // namespace lisp
