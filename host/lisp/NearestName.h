// What a misspelt name was probably meant to be.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lisp {

// The candidate that is the fewest steps from `wanted`, as it stands there; nothing where even that one is
// too far for a slip: more than a third of the wanted name's letters, but one step is always granted. A step
// puts in, leaves out or replaces a letter, or swaps two neighbours; letter case doesn't count. The first of
// equally near ones.
std::optional<std::u16string> nearestName(std::u16string_view wanted,
                                          std::span<const std::u16string> candidates);

}  // namespace lisp
