#include "host/lisp/Reader.h"

#include <algorithm>

#include "host/lisp/Machine.h"
#include "host/lisp/Text.h"

namespace lisp {

namespace {

bool isBlank(char16_t c) { return c <= u' ' || c == 0xA0 || c == 0xFEFF; }
bool endsToken(char16_t c) {
    return isBlank(c) || c == u'(' || c == u')' || c == u'"' || c == u';' || c == u'\'';
}

int digitValue(char16_t c) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return 99;
}

}  // namespace

Reader::Reader(Machine& machine, std::u16string_view text, uint32_t file, uint32_t line)
    : m_machine(machine), m_text(text), m_line(line ? line : 1), m_file(file), m_countsLines(!line) {}

bool Reader::next(Value& result) {
    skipBlanks();
    if (atEnd()) return false;
    if (m_file) m_machine.setCurrent({m_file, m_line}, nullptr);
    result = form();
    return true;
}

char16_t Reader::take() {
    char16_t c = m_text[m_position++];
    if (c == u'\n' && m_countsLines) ++m_line;
    return c;
}

void Reader::skipBlanks() {
    while (!atEnd()) {
        if (isBlank(peek())) {
            take();
        } else if (m_text.substr(m_position).starts_with(u";|")) {
            size_t end = m_text.find(u"|;", m_position + 2);
            if (end == m_text.npos) fail(u"the comment that opens here is not closed", m_line);
            while (m_position < end + 2) take();
        } else if (peek() == u';') {
            while (!atEnd() && peek() != u'\n') take();
        } else {
            return;
        }
    }
}

Value Reader::form() {
    m_machine.checkDepth();
    switch (peek()) {
        case u'(':
            return list();
        case u'"':
            return string();
        case u')':
            fail(u"a closing parenthesis without an opening one", m_line);
        case u'\'': {
            Place place{m_file, m_line};
            take();
            skipBlanks();
            if (atEnd()) fail(u"nothing after the quote mark", m_line);
            Value argument = Value::of(m_machine.heap.cons(form(), Value::nil(), place));
            return Value::of(
                m_machine.heap.cons(Value::of(m_machine.symbols.intern(u"QUOTE")), argument, place));
        }
        default:
            return atom();
    }
}

Value Reader::list() {
    uint32_t opened = m_line;
    take();
    Cons* first = nullptr;
    Cons* last = nullptr;
    while (true) {
        skipBlanks();
        if (atEnd()) fail(u"the list that opens here is not closed", opened);
        if (peek() == u')') {
            take();
            return first ? Value::of(first) : Value::nil();
        }
        uint32_t line = first ? m_line : opened;
        bool dot =
            last && peek() == u'.' && (m_position + 1 == m_text.size() || endsToken(m_text[m_position + 1]));
        if (dot) {
            take();
            skipBlanks();
            if (atEnd() || peek() == u')') fail(u"nothing after the dot", m_line);
            last->cdr = form();
            skipBlanks();
            if (atEnd()) fail(u"the list that opens here is not closed", opened);
            if (take() != u')') fail(u"more than one form after the dot", m_line);
            return Value::of(first);
        }
        Cons* cell = m_machine.heap.cons(form(), Value::nil(), {m_file, line});
        if (last) last->cdr = Value::of(cell);
        if (!first) first = cell;
        last = cell;
    }
}

Value Reader::string() {
    uint32_t opened = m_line;
    std::u16string text;
    take();
    while (true) {
        if (atEnd()) fail(u"the string that opens here is not closed", opened);
        char16_t c = take();
        if (c == u'"') return Value::of(m_machine.heap.string(std::move(text)));
        if (c == u'\\' && !atEnd())
            appendEscape(text);
        else
            text += c;
    }
}

void Reader::appendEscape(std::u16string& text) {
    char16_t c = take();
    switch (c) {
        case u'n':
            text += u'\n';
            return;
        case u'r':
            text += u'\r';
            return;
        case u't':
            text += u'\t';
            return;
        case u'e':
            text += u'\x1B';
            return;
        case u'U':
            text += takeUnicode().value_or(c);
            return;
        default:
            break;
    }
    if (digitValue(c) >= 8) {
        text += c;
        return;
    }
    uint32_t code = uint32_t(digitValue(c));
    for (int i = 0; i < 2 && !atEnd() && digitValue(peek()) < 8; ++i)
        code = code << 3 | uint32_t(digitValue(take()));
    text += char16_t(code);
}

// The character behind `\U`, where a plus sign and four hexadecimal digits follow.
std::optional<char16_t> Reader::takeUnicode() {
    if (m_text.size() - m_position < 5 || peek() != u'+') return std::nullopt;
    uint32_t code = 0;
    for (size_t i = 1; i <= 4; ++i) {
        int digit = digitValue(m_text[m_position + i]);
        if (digit >= 16) return std::nullopt;
        code = code << 4 | uint32_t(digit);
    }
    m_position += 5;
    return char16_t(code);
}

Value Reader::atom() {
    size_t start = m_position;
    while (!atEnd() && !endsToken(peek())) ++m_position;
    std::u16string_view token = m_text.substr(start, m_position - start);
    if (token == u".") fail(u"a dot outside of a list", m_line);
    bool digits = token.find_first_of(u"0123456789") != token.npos;
    bool signedOrDigit =
        digitValue(token[0]) < 10 || token[0] == u'+' || token[0] == u'-' || token[0] == u'.';
    if (digits && signedOrDigit) {
        if (std::optional<double> number = parseReal(token)) {
            bool whole = token.find_first_of(u".eE") == token.npos;
            if (whole && *number >= INT32_MIN && *number <= INT32_MAX)
                return Value::integer(int32_t(*number));
            return Value::real(*number);
        }
    }
    return m_machine.interpreter.symbol(token);
}

void Reader::fail(std::u16string message, uint32_t line) const {
    if (m_file) m_machine.setCurrent({m_file, line}, nullptr);
    throw Error(std::move(message));
}

bool Reader::isComplete(std::u16string_view text) {
    int depth = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        char16_t c = text[i];
        if (c == u'(') {
            ++depth;
        } else if (c == u')') {
            --depth;
        } else if (c == u'"') {
            for (++i; i < text.size() && text[i] != u'"'; ++i)
                if (text[i] == u'\\') ++i;
            if (i >= text.size()) return false;
        } else if (text.substr(i).starts_with(u";|")) {
            i = text.find(u"|;", i + 2);
            if (i == text.npos) return false;
            ++i;
        } else if (c == u';') {
            i = text.find(u'\n', i);
            if (i == text.npos) break;
        }
    }
    return depth <= 0;
}

bool isWord(std::u16string_view text) {
    return !text.empty() && std::none_of(text.begin(), text.end(), endsToken);
}

std::u16string readable(std::u16string_view text) {
    std::u16string result = u"\"";
    for (char16_t c : text) {
        switch (c) {
            case u'"':
                result += u"\\\"";
                break;
            case u'\\':
                result += u"\\\\";
                break;
            case u'\n':
                result += u"\\n";
                break;
            case u'\r':
                result += u"\\r";
                break;
            case u'\t':
                result += u"\\t";
                break;
            case u'\x1B':
                result += u"\\e";
                break;
            default:
                if (c >= u' ') {
                    result += c;
                } else {
                    for (char16_t digit : {u'\\', char16_t(u'0' + (c >> 6)), char16_t(u'0' + (c >> 3 & 7)),
                                           char16_t(u'0' + (c & 7))})
                        result += digit;
                }
        }
    }
    return result + u"\"";
}

}  // namespace lisp
