// Records in the order in which they came, found again by their value. Portable.
#pragma once

#include <cstdint>
#include <map>
#include <set>

#include "src/records/Record.h"

class TrackedRecords {
  public:
    // By a number that rises with each record that came.
    using Entries = std::map<uint64_t, Record>;
    using Entry = Entries::iterator;

    bool empty() const { return m_entries.empty(); }
    size_t size() const { return m_entries.size(); }
    Entries::const_iterator begin() const { return m_entries.begin(); }
    Entries::const_iterator end() const { return m_entries.end(); }
    // Walks there; `at` counts from 0 and may be size().
    Entries::const_iterator from(size_t at) const { return std::next(m_entries.begin(), at); }

    void append(const Record& record);
    // The first entry that is the same record; end() for none. As a search from the first entry on would find
    // it, in time that hardly grows with their number.
    Entry find(const Record& record);
    void replace(Entry entry, const Record& record);
    void erase(Entry entry);
    void clear();

  private:
    using Value = std::pair<size_t, uint64_t>;  // a record's hash, its number
    static Value valueOf(Entry entry) { return {entry->second.hash(), entry->first}; }

    Entries m_entries;
    std::set<Value> m_byValue;
    uint64_t m_next = 0;
};
