#include "src/platform/gridlib/EditHistory.h"

#include <utility>

void EditHistory::record(Step step) {
    if (step.empty()) return;
    while (m_steps.size() > m_done) {
        m_changes -= m_steps.back().size();
        m_steps.pop_back();
    }
    m_changes += step.size();
    m_steps.push_back(std::move(step));
    while (m_changes > MOST_CHANGES && m_steps.size() > 1) {
        m_changes -= m_steps.front().size();
        m_steps.pop_front();
    }
    m_done = m_steps.size();
}

const EditHistory::Step* EditHistory::back() { return m_done == 0 ? nullptr : &m_steps[--m_done]; }

const EditHistory::Step* EditHistory::forward() {
    return m_done == m_steps.size() ? nullptr : &m_steps[m_done++];
}
