#include "host/lisp/Error.h"

#include "host/lisp/Text.h"

namespace lisp {

Error::Error(std::u16string message, int argument)
    : m_message(std::move(message)), m_utf8(toUtf8(m_message)), m_argument(argument) {}

std::u16string Error::text() const {
    std::u16string text;
    if (!m_file.empty()) text += m_file + u":" + decimal(int64_t(m_line)) + u": ";
    if (!m_function.empty()) text += u"(" + m_function + u"): ";
    if (m_argument) text += u"argument " + decimal(int64_t(m_argument)) + u": ";
    return text + m_message;
}

void Error::locate(std::u16string_view file, int line, std::u16string_view function) {
    if (m_located) return;
    m_located = true;
    m_file = file;
    m_line = line;
    m_function = function;
    m_utf8 = toUtf8(text());
}

}  // namespace lisp
