#include "host/lisp/Reader.h"

#include <algorithm>

#include "host/lisp/Machine.h"
#include "host/lisp/Tokens.h"

namespace lisp {

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
            last && peek() == u'.' && (m_position + 1 == m_text.size() || endsWord(m_text[m_position + 1]));
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
        if (c == u'\\' && !atEnd()) {
            const char16_t letter = take();
            text += escaped(letter, m_text, m_position);
        } else {
            text += c;
        }
    }
}

Value Reader::atom() {
    size_t start = m_position;
    while (!atEnd() && !endsWord(peek())) ++m_position;
    std::u16string_view token = m_text.substr(start, m_position - start);
    if (token == u".") fail(u"a dot outside of a list", m_line);
    const std::optional<Number> number = numberOf(token);
    if (!number) return m_machine.interpreter.symbol(token);
    const auto* integer = std::get_if<int32_t>(&*number);
    return integer ? Value::integer(*integer) : Value::real(std::get<double>(*number));
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
    return !text.empty() && std::none_of(text.begin(), text.end(), endsWord);
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
