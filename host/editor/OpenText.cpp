#include "host/editor/OpenText.h"

#include <algorithm>

#include "host/lisp/Text.h"

namespace editor {

namespace {

std::u16string linesOf(std::string_view utf8) {
    std::u16string text = lisp::fromUtf8(utf8);
    size_t kept = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (!isPair) text[kept++] = text[i] == u'\r' ? u'\n' : text[i];
    }
    text.resize(kept);
    return text;
}

}  // namespace

OpenText::OpenText(std::string_view utf8) : m_text(linesOf(utf8)), m_lines(m_text) {}

void OpenText::replace(Position begin, Position end, std::string_view utf8) {
    const uint32_t from = offsetOf(begin);
    const uint32_t to = std::max(from, offsetOf(end));
    m_text.replace(from, to - from, linesOf(utf8));
    m_lines = check::LineTable(m_text);
}

uint32_t OpenText::offsetOf(Position position) const {
    const uint32_t size = static_cast<uint32_t>(m_text.size());
    if (position.line >= m_lines.count()) return size;
    const uint32_t start = m_lines.start(position.line);
    const uint32_t end = position.line + 1 < m_lines.count() ? m_lines.start(position.line + 1) - 1 : size;
    return start + std::min(position.character, end - start);
}

Position OpenText::positionOf(uint32_t offset) const {
    const uint32_t line = m_lines.line(offset);
    return {line, offset - m_lines.start(line)};
}

}  // namespace editor
