#include "host/frame/CommandHistory.h"

void CommandHistory::add(const std::wstring& line) {
    if (!line.empty() && (m_lines.empty() || m_lines.back() != line)) m_lines.push_back(line);
    m_at = m_lines.size();
}

void CommandHistory::beginWalk(const std::wstring& typed) {
    if (m_at == m_lines.size()) m_typed = typed;
}

const std::wstring& CommandHistory::older(const std::wstring& typed) {
    beginWalk(typed);
    if (m_at > 0) --m_at;
    return m_at == m_lines.size() ? m_typed : m_lines[m_at];
}

const std::wstring& CommandHistory::newer(const std::wstring& typed) {
    beginWalk(typed);
    if (m_at < m_lines.size()) ++m_at;
    return m_at == m_lines.size() ? m_typed : m_lines[m_at];
}
