#include "host/lisp/NearestName.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "host/lisp/Text.h"

namespace lisp {

namespace {

// The number of steps from one text to the other, and `limit` + 1 where it is more than `limit`.
size_t stepsBetween(std::u16string_view from, std::u16string_view to, size_t limit) {
    const size_t difference = from.size() > to.size() ? from.size() - to.size() : to.size() - from.size();
    if (difference > limit) return limit + 1;
    // Three rows of the usual table; column `at` stands for the first `at` letters of `to`.
    std::vector<size_t> beforeLast(to.size() + 1);
    std::vector<size_t> last(to.size() + 1);
    std::vector<size_t> row(to.size() + 1);
    for (size_t at = 0; at <= to.size(); ++at) row[at] = at;
    for (size_t letter = 1; letter <= from.size(); ++letter) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = letter;
        for (size_t at = 1; at <= to.size(); ++at) {
            const size_t replaced = last[at - 1] + (from[letter - 1] == to[at - 1] ? 0 : 1);
            row[at] = std::min({last[at] + 1, row[at - 1] + 1, replaced});
            const bool swapped =
                letter > 1 && at > 1 && from[letter - 1] == to[at - 2] && from[letter - 2] == to[at - 1];
            if (swapped) row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return std::min(row.back(), limit + 1);
}

}  // namespace

std::optional<std::u16string> nearestName(std::u16string_view wanted,
                                          std::span<const std::u16string> candidates) {
    const std::u16string lower = lowerCase(wanted);
    size_t limit = std::max<size_t>(1, wanted.size() / 3);
    const std::u16string* nearest = nullptr;
    for (const std::u16string& candidate : candidates) {
        const size_t steps = stepsBetween(lower, lowerCase(candidate), limit);
        // One letter in the place of another is a slip only where other letters remain.
        const bool hasLikeness = steps < std::max(wanted.size(), candidate.size());
        if (steps > limit || !hasLikeness) continue;
        nearest = &candidate;
        if (steps == 0) break;
        limit = steps - 1;
    }
    return nearest ? std::optional(*nearest) : std::nullopt;
}

}  // namespace lisp
