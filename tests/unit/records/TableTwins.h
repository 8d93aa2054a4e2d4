// The record table and the plain one, which get the same calls and are compared after each.
#pragma once

#include <cstdlib>

#include "src/records/WexRecordTable.h"
#include "tests/unit/records/PlainTable.h"

class TableTwins {
  public:
    // `counted` is what the store says of its rows, which need not be their number.
    TableTwins(int rows, int counted)
        : m_store(rows), m_table(counting(m_store, counted)), m_plain(m_store.rows, counted) {
        m_table.setUp(L"", L"Parts", L"");
    }

    // What went wrong; empty for nothing. Both are changed by the call: `action` 0 reads, 1 adds, 2 sets, 3
    // removes, 4 forgets the changes, 5 looks without loading. `text` is the first field of what is written.
    std::wstring call(int action, int n, const std::wstring& text) {
        const auto [ours, plain] = std::pair(ourOutcome(action, n, text), plainOutcome(action, n, text));
        if (ours != plain) return L"outcome " + ours + L" for " + plain;
        return difference();
    }

    int count() const { return m_table.m_count; }

  private:
    static MemoryStore& counting(MemoryStore& store, int counted) {
        store.count = counted;
        return store;
    }

    std::wstring ourOutcome(int action, int n, const std::wstring& text) {
        try {
            if (action == 0 || action == 5) {
                const Record* record = action == 0 ? m_table.At(n) : m_table.peek(n);
                return record ? L"record " + std::wstring(record->field(0)) : L"no record";
            }
            if (action == 1) m_table.Add(recordOf({text, L"added"}));
            if (action == 2) m_table.Update(n, recordOf({text}));
            if (action == 3) m_table.Remove(n);
            if (action == 4) m_table.forgetChanges();
            return L"done";
        } catch (const WexIndexError&) {
            return L"out of range";
        }
    }

    std::wstring plainOutcome(int action, int n, const std::wstring& text) {
        try {
            if (action == 0) return read(m_plain, n);
            if (action == 5) {
                PlainTable copy = m_plain;
                return n < 0 || n >= copy.count ? L"no record" : read(copy, n);
            }
            if (action == 1) m_plain.add({text, L"added"});
            if (action == 2) m_plain.update(n, {text});
            if (action == 3) m_plain.remove(n);
            if (action == 4) m_plain.forgetChanges();
            return L"done";
        } catch (const PlainTable::OutOfRange&) {
            return L"out of range";
        }
    }

    static std::wstring read(PlainTable& table, int n) {
        const Fields* record = table.at(n);
        return record ? L"record " + (record->empty() ? L"" : record->front()) : L"no record";
    }

    template <class Records>
    static std::vector<Fields> allFields(const Records& records) {
        std::vector<Fields> all;
        for (const auto& record : records) {
            if constexpr (std::is_same_v<Records, TrackedRecords>)
                all.push_back(fieldsOf(record.second));
            else
                all.push_back(fieldsOf(record));
        }
        return all;
    }

    std::wstring difference() const {
        if (m_table.m_count != m_plain.count) return L"counts";
        if (m_table.m_pagedUpTo != m_plain.pagedUpTo) return L"paged up to";
        if (allFields(m_table.m_added) != m_plain.added) return L"added";
        if (allFields(m_table.m_modified) != m_plain.modified) return L"modified";
        if (allFields(m_table.m_deleted) != m_plain.deleted) return L"deleted";
        if (m_table.m_pages.size() != m_plain.pages.size()) return L"number of pages";
        for (size_t page = 0; page < m_plain.pages.size(); ++page) {
            if (int(m_table.m_pages[page].state) != m_plain.pages[page].state) return L"a page's state";
            if (allFields(m_table.m_pages[page].rows) != m_plain.pages[page].rows) return L"a page's rows";
        }
        return L"";
    }

    MemoryStore m_store;
    WexRecordTable m_table;
    PlainTable m_plain;
};
