// Text: parts, letter case, search, numbers as text.
#include <algorithm>

#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Text.h"
#include "host/lisp/WildcardMatch.h"

namespace lisp {

namespace {

constexpr std::u16string_view BLANKS = u" \t\r\n";

// A text that grows within the bounds of the heap.
class Growing {
  public:
    explicit Growing(Call& call) : m_call(call) {}
    void add(std::u16string_view part) {
        m_call.lisp.machine().heap.requireRoom(sizeof(char16_t) * (m_text.size() + part.size()));
        m_text += part;
    }
    Value value() const { return m_call.lisp.string(m_text); }

  private:
    Call& m_call;
    std::u16string m_text;
};

Value concatenate(Call& call) {
    Growing result(call);
    for (size_t i = 0; i < call.count(); ++i) result.add(call.text(i));
    return result.value();
}

Value length(Call& call) {
    size_t total = 0;
    for (size_t i = 0; i < call.count(); ++i) total += call.text(i).size();
    return Value::integer(int32_t(total));
}

// (substr text start [length]), counted from 1.
Value part(Call& call) {
    std::u16string_view text = call.text(0);
    if (call.integer(1) < 1) call.expected(1, "a position from 1");
    if (call.integerOr(2, 0) < 0) call.expected(2, "a length from 0");
    size_t start = std::min(size_t(call.integer(1)) - 1, text.size());
    return call.lisp.string(text.substr(start, size_t(call.integerOr(2, INT32_MAX))));
}

Value changeCase(Call& call) {
    return call.lisp.string(call[1].isNil() ? upperCase(call.text(0)) : lowerCase(call.text(0)));
}

// The code point at `position`, and past it.
int32_t codeAt(std::u16string_view text, size_t& position) {
    char16_t first = text[position++];
    bool pair = (first & 0xFC00) == 0xD800 && position < text.size() && (text[position] & 0xFC00) == 0xDC00;
    if (!pair) return first;
    return 0x10000 + ((first & 0x3FF) << 10) + (text[position++] & 0x3FF);
}

void appendCode(std::u16string& text, int32_t code) {
    if (code >= 0x10000) {
        text += char16_t(0xD800 + ((code - 0x10000) >> 10));
        code = 0xDC00 + ((code - 0x10000) & 0x3FF);
    }
    text += char16_t(code);
}

Value codeOfFirst(Call& call) {
    size_t position = 0;
    return Value::integer(call.text(0).empty() ? 0 : codeAt(call.text(0), position));
}

Value characterOf(Call& call) {
    int32_t code = call.integer(0);
    if (code < 1 || code > 0x10FFFF) call.expected(0, "a character's code");
    std::u16string text;
    appendCode(text, code);
    return call.lisp.string(text);
}

Value toList(Call& call) {
    ListBuilder codes(call.lisp);
    const std::u16string& text = call.text(0);
    for (size_t position = 0; position < text.size();) codes.add(Value::integer(codeAt(text, position)));
    return codes.list();
}

Value fromList(Call& call) {
    std::u16string text;
    for (Value code : Elements(call.list(0))) {
        bool valid = code.isInteger() && code.asInteger() >= 1 && code.asInteger() <= 0x10FFFF;
        if (!valid) call.expected(0, "a list of characters' codes");
        appendCode(text, code.asInteger());
    }
    return call.lisp.string(text);
}

Value integerToText(Call& call) { return call.lisp.string(decimal(int64_t(call.integer(0)))); }

// The longest start of the text that is a number, after blanks; 0 where there is none.
double leadingNumber(std::u16string_view text, std::u16string_view letters) {
    size_t start = text.find_first_not_of(BLANKS);
    if (start == text.npos) return 0;
    text.remove_prefix(start);
    // No number takes more characters, and the search below is quadratic.
    constexpr size_t LONGEST = 400;
    text = text.substr(0, std::min(text.find_first_not_of(letters), LONGEST));
    for (; !text.empty(); text.remove_suffix(1))
        if (auto number = parseReal(text)) return *number;
    return 0;
}

Value textToInteger(Call& call) {
    double number = leadingNumber(call.text(0), u"+-0123456789");
    return Value::integer(int32_t(std::clamp(number, double(INT32_MIN), double(INT32_MAX))));
}

Value textToReal(Call& call) { return Value::real(leadingNumber(call.text(0), u"+-.eE0123456789")); }

Value matches(Call& call) { return Value::truth(wildcardMatch(call.text(0), call.text(1))); }

// (string-search text part [start]): the position from 0, or nil.
Value search(Call& call) {
    if (call.integerOr(2, 0) < 0) call.expected(2, "a position from 0");
    size_t found = call.text(0).find(call.text(1), size_t(call.integerOr(2, 0)));
    return found == std::u16string::npos ? Value::nil() : Value::integer(int32_t(found));
}

Value replace(Call& call) {
    const std::u16string &text = call.text(0), &what = call.text(1), &by = call.text(2);
    if (what.empty()) return call[0];
    Growing result(call);
    std::u16string_view rest = text;
    for (size_t at; (at = rest.find(what)) != rest.npos; rest.remove_prefix(at + what.size())) {
        result.add(rest.substr(0, at));
        result.add(by);
    }
    result.add(rest);
    return result.value();
}

Value trimmed(Call& call, bool left, bool right) {
    std::u16string_view text = call.text(0);
    std::u16string_view blanks = call[1].isNil() ? BLANKS : std::u16string_view(call.text(1));
    size_t start = left ? std::min(text.find_first_not_of(blanks), text.size()) : 0;
    size_t end = right ? text.find_last_not_of(blanks) + 1 : text.size();
    return call.lisp.string(end > start ? text.substr(start, end - start) : u"");
}

Value trimBoth(Call& call) { return trimmed(call, true, true); }
Value trimLeft(Call& call) { return trimmed(call, true, false); }
Value trimRight(Call& call) { return trimmed(call, false, true); }

Value split(Call& call) {
    const std::u16string &text = call.text(0), &separator = call.text(1);
    if (separator.empty()) call.expected(1, "a separator that isn't empty");
    ListBuilder parts(call.lisp);
    size_t from = 0;
    for (size_t at; (at = text.find(separator, from)) != text.npos; from = at + separator.size())
        parts.add(call.lisp.string(text.substr(from, at - from)));
    parts.add(call.lisp.string(text.substr(from)));
    return parts.list();
}

Value join(Call& call) {
    Growing result(call);
    bool first = true;
    for (Value part : Elements(call.list(0))) {
        if (!part.isString()) call.expected(0, "a list of strings");
        if (!first) result.add(call.text(1));
        result.add(part.asString());
        first = false;
    }
    return result.value();
}

Value startsWith(Call& call) { return Value::truth(call.text(1).starts_with(call.text(0))); }
Value endsWith(Call& call) { return Value::truth(call.text(1).ends_with(call.text(0))); }

Value equalIgnoringCase(Call& call) {
    return Value::truth(upperCase(call.text(0)) == upperCase(call.text(1)));
}

Value displayed(Call& call) { return call.lisp.string(call.lisp.display(call[0])); }
Value printed(Call& call) { return call.lisp.string(call.lisp.print(call[0])); }

constexpr Definition FUNCTIONS[] = {
    {u"strcat", concatenate, 0, -1},
    {u"strlen", length, 0, -1},
    {u"substr", part, 2, 3},
    {u"strcase", changeCase, 1, 2},
    {u"ascii", codeOfFirst, 1, 1},
    {u"chr", characterOf, 1, 1},
    {u"string-to-list", toList, 1, 1},
    {u"list-to-string", fromList, 1, 1},
    {u"itoa", integerToText, 1, 1},
    {u"atoi", textToInteger, 1, 1},
    {u"atof", textToReal, 1, 1},
    {u"wcmatch", matches, 2, 2},
    {u"string-search", search, 2, 3},
    {u"string-replace", replace, 3, 3},
    {u"string-trim", trimBoth, 1, 2},
    {u"string-left-trim", trimLeft, 1, 2},
    {u"string-right-trim", trimRight, 1, 2},
    {u"string-split", split, 2, 2},
    {u"string-join", join, 2, 2},
    {u"string-prefix-p", startsWith, 2, 2},
    {u"string-suffix-p", endsWith, 2, 2},
    {u"string-equal", equalIgnoringCase, 2, 2},
    {u"princ-to-string", displayed, 1, 1},
    {u"prin1-to-string", printed, 1, 1},
};

}  // namespace

void defineStringFunctions(Interpreter& lisp) { defineAll(lisp, FUNCTIONS); }

}  // namespace lisp
