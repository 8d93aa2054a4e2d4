#include "host/frame/Prompt.h"

#include <optional>
#include <utility>

#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"

void Prompt::enter(std::u16string_view line) {
    m_pending.append(line).append(u"\n");
    if (!lisp::Interpreter::isComplete(m_pending)) return;
    const std::u16string text(lisp::trimmed(std::exchange(m_pending, {})));
    if (text.empty()) return;
    try {
        const lisp::Value value = evaluate(text);
        m_lisp.write(value.isNone() ? u"\n" : m_lisp.print(value) + u"\n");
    } catch (const lisp::Error& error) {
        m_report(error.text());
    }
}

void Prompt::finish() {
    try {
        m_lisp.readAll(std::exchange(m_pending, {}), {u"prompt"});
    } catch (const lisp::Error& error) {
        m_report(error.text());
    }
}

lisp::Value Prompt::evaluate(const std::u16string& text) {
    if (lisp::isWord(text)) {
        const std::optional<lisp::Value> value = m_lisp.apply(u"c:" + text, {});
        if (value) return *value;
    }
    return m_lisp.evalText(text, u"prompt");
}
