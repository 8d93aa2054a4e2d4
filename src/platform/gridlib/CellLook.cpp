#include "src/platform/gridlib/CellLook.h"

#include <functional>

namespace {

// Every attribute: a new one is named here and in the struct.
constexpr auto ATTRIBUTES = std::make_tuple(
    &CellLook::control, &CellLook::readOnly, &CellLook::wrap, &CellLook::horizontal, &CellLook::merge,
    &CellLook::interior, &CellLook::textColor, &CellLook::format, &CellLook::places, &CellLook::choices);

template <class Value>
size_t hashOf(const Value& value) {
    return std::hash<Value>()(value);
}
size_t hashOf(const CellText& text) { return hashOf(text.view()); }

}  // namespace

void CellLook::apply(const CellLook& over) {
    const auto take = [&](auto attribute) {
        if (over.*attribute) this->*attribute = over.*attribute;
    };
    std::apply([&](auto... attribute) { (take(attribute), ...); }, ATTRIBUTES);
    hasValue = hasValue || over.hasValue;
}

size_t CellLook::hash() const {
    size_t hash = hasValue;
    const auto add = [&](const auto& value) { hash = hash * 1000003 + (value ? hashOf(*value) + 1 : 0); };
    std::apply([&](auto... attribute) { (add(this->*attribute), ...); }, ATTRIBUTES);
    return hash;
}
