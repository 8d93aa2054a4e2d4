#include "src/records/TrackedRecords.h"

void TrackedRecords::append(const Record& record) {
    m_byValue.insert(valueOf(m_entries.emplace_hint(m_entries.end(), m_next++, record)));
}

TrackedRecords::Entry TrackedRecords::find(const Record& record) {
    const size_t hash = record.hash();
    for (auto at = m_byValue.lower_bound({hash, 0}); at != m_byValue.end() && at->first == hash; ++at) {
        const Entry entry = m_entries.find(at->second);
        if (entry->second == record) return entry;
    }
    return m_entries.end();
}

void TrackedRecords::replace(Entry entry, const Record& record) {
    m_byValue.erase(valueOf(entry));
    entry->second = record;
    m_byValue.insert(valueOf(entry));
}

void TrackedRecords::erase(Entry entry) {
    m_byValue.erase(valueOf(entry));
    m_entries.erase(entry);
}

void TrackedRecords::clear() {
    m_entries.clear();
    m_byValue.clear();
}
