#include "host/database/DxfGroups.h"

#include <charconv>
#include <cmath>

#include "host/database/DrawingFile.h"
#include "host/lisp/Text.h"

namespace cad {

double Group::number() const {
    double number = 0.0;
    std::string_view digits = value;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (fault != std::errc() || end != digits.data() + digits.size() || !std::isfinite(number)) {
        throw FileFault(line, "\"" + std::string(value) + "\" is no number");
    }
    return number;
}

int Group::whole() const {
    const double value = number();
    return std::fabs(value) < 2e9 ? static_cast<int>(value) : 0;
}

void Groups::next() {
    const std::string_view code = lisp::trimmed(line());
    m_group.line = m_number + 1;
    const auto [end, fault] = std::from_chars(code.data(), code.data() + code.size(), m_group.code);
    if (fault != std::errc() || end != code.data() + code.size()) {
        throw FileFault(m_number,
                        "a group code is expected, not \"" + std::string(code.substr(0, 40)) + "\"");
    }
    // Blanks at the begin of a text are its own.
    m_group.value = line();
    if (m_group.code >= 10 || m_group.code == 0) m_group.value = lisp::trimmed(m_group.value);
}

std::string_view Groups::line() {
    if (m_rest.empty()) throw FileFault(m_number, "the file ends before its EOF");
    ++m_number;
    const size_t length = m_rest.find('\n');
    std::string_view line = m_rest.substr(0, length);
    m_rest.remove_prefix(length == std::string_view::npos ? m_rest.size() : length + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

std::u16string decodedText(std::string_view bytes) {
    const std::u16string raw = lisp::fromUtf8(bytes);
    std::u16string text;
    for (size_t at = 0; at < raw.size(); ++at) {
        const std::u16string_view rest = std::u16string_view(raw).substr(at);
        if (rest.starts_with(u"\\U+") && rest.size() >= 7) {
            const std::string digits = lisp::toUtf8(rest.substr(3, 4));
            uint16_t letter = 0;
            const auto [end, fault] =
                std::from_chars(digits.data(), digits.data() + digits.size(), letter, 16);
            if (fault == std::errc() && end == digits.data() + 4) {
                text += static_cast<char16_t>(letter);
                at += 6;
                continue;
            }
        } else if (rest.starts_with(u"%%") && rest.size() >= 3) {
            const char16_t sign = lisp::lowerCase(rest[2]);
            const char16_t letter = sign == u'd'   ? u'\u00B0'
                                    : sign == u'p' ? u'\u00B1'
                                    : sign == u'c' ? u'\u2300'
                                                   : u'\0';
            if (letter) {
                text += letter;
                at += 2;
                continue;
            }
        }
        text += raw[at];
    }
    return text;
}

std::u16string withoutFormats(const std::u16string& raw) {
    std::u16string text;
    for (size_t at = 0; at < raw.size(); ++at) {
        if (raw[at] == u'{' || raw[at] == u'}') continue;
        if (raw[at] != u'\\' || at + 1 == raw.size()) {
            text += raw[at];
            continue;
        }
        const char16_t code = raw[++at];
        if (code == u'P') {
            text += u"\\P";
        } else if (code == u'~') {
            text += u' ';
        } else if (std::u16string_view(u"ACFfHQTWpS").find(code) != std::u16string_view::npos) {
            const size_t end = raw.find(u';', at);
            if (code == u'S' && end != std::u16string::npos) text += raw.substr(at + 1, end - at - 1);
            at = end == std::u16string::npos ? raw.size() : end;
        } else if (std::u16string_view(u"LlOoKk").find(code) == std::u16string_view::npos) {
            text += code;
        }
    }
    return text;
}

}  // namespace cad
