#include "host/lisp/WildcardMatch.h"

#include "host/lisp/Text.h"

namespace lisp {

namespace {

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
bool isLetter(char16_t c) { return upperCase(c) != c || lowerCase(c) != c; }

// The length of the pattern element at the start of `pattern`.
size_t elementLength(std::u16string_view pattern) {
    if (pattern[0] == u'`' && pattern.size() > 1) return 2;
    if (pattern[0] != u'[') return 1;
    size_t close = pattern.find(u']', 2);
    return close == pattern.npos ? 1 : close + 1;
}

// `set` is what stands between the brackets.
bool inSet(char16_t c, std::u16string_view set) {
    bool negated = set.starts_with(u'~');
    if (negated) set.remove_prefix(1);
    for (size_t i = 0; i < set.size(); ++i) {
        bool isRange = i + 2 < set.size() && set[i + 1] == u'-';
        if (isRange ? c >= set[i] && c <= set[i + 2] : c == set[i]) return !negated;
        if (isRange) i += 2;
    }
    return negated;
}

bool elementMatches(char16_t c, std::u16string_view element) {
    if (element.size() == 2) return c == element[1];
    if (element.size() > 2) return inSet(c, element.substr(1, element.size() - 2));
    switch (element[0]) {
        case u'#':
            return isDigit(c);
        case u'@':
            return isLetter(c);
        case u'.':
            return !isDigit(c) && !isLetter(c);
        case u'?':
            return true;
        default:
            return c == element[0];
    }
}

// Going back to the last star is enough: an earlier one could only take what a later one can.
bool matchOne(std::u16string_view text, std::u16string_view pattern) {
    std::u16string_view afterStar;
    size_t position = 0, starPosition = text.npos;
    while (position < text.size() || !pattern.empty()) {
        if (pattern.starts_with(u'*')) {
            pattern.remove_prefix(1);
            afterStar = pattern;
            starPosition = position;
            continue;
        }
        size_t length = pattern.empty() ? 0 : elementLength(pattern);
        if (length && position < text.size() && elementMatches(text[position], pattern.substr(0, length))) {
            pattern.remove_prefix(length);
            ++position;
            continue;
        }
        if (starPosition >= text.size()) return false;
        position = ++starPosition;
        pattern = afterStar;
    }
    return true;
}

}  // namespace

bool wildcardMatch(std::u16string_view text, std::u16string_view patterns) {
    while (true) {
        size_t length = 0;
        while (length < patterns.size() && patterns[length] != u',')
            length += elementLength(patterns.substr(length));
        std::u16string_view pattern = patterns.substr(0, length);
        bool negated = pattern.starts_with(u'~');
        if (negated) pattern.remove_prefix(1);
        if (matchOne(text, pattern) != negated) return true;
        if (length >= patterns.size()) return false;
        patterns.remove_prefix(length + 1);
    }
}

}  // namespace lisp
