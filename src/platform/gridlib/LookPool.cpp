#include "src/platform/gridlib/LookPool.h"

LookPool::LookPool() { m_entries.emplace_back(); }

LookPool::Id LookPool::hold(const CellLook& look) {
    if (look == CellLook()) return NONE;
    const auto [at, isNew] = m_ids.try_emplace(look, NONE);
    if (isNew) {
        if (m_free.empty()) {
            at->second = static_cast<Id>(m_entries.size());
            m_entries.emplace_back();
        } else {
            at->second = m_free.back();
            m_free.pop_back();
        }
        m_entries[at->second].look = look;
    }
    ++m_entries[at->second].holders;
    return at->second;
}

LookPool::Id LookPool::holdApplied(Id base, const CellLook& over) {
    if (m_hasLast && base == m_lastBase && over == m_lastOver) {
        ++m_entries[m_lastResult].holders;
        return m_lastResult;
    }
    CellLook applied = m_entries[base].look;
    applied.apply(over);
    const Id result = hold(applied);
    m_hasLast = result != NONE;
    m_lastBase = base;
    m_lastOver = over;
    m_lastResult = result;
    return result;
}

void LookPool::release(Id id) {
    if (id == NONE || --m_entries[id].holders > 0) return;
    m_ids.erase(m_entries[id].look);
    m_entries[id].look = CellLook();
    m_free.push_back(id);
    m_hasLast = false;
}
