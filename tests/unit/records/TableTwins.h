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
        const auto asItIs = [](const Fields& fields) { return fields; };
        const std::wstring ours = outcome(m_table, action, n, text, recordOf);
        PlainTable copy = m_plain;  // on which a look may load pages
        const std::wstring plain = action != 5                ? outcome(m_plain, action, n, text, asItIs)
                                   : n < 0 || n >= copy.count ? L"no record"
                                                              : told(copy.At(n));
        if (ours != plain) return L"outcome " + ours + L" for " + plain;
        return difference();
    }

    int count() const { return m_table.m_count; }

  private:
    static MemoryStore& counting(MemoryStore& store, int counted) {
        store.count = counted;
        return store;
    }

    template <class Table, class Row>
    static std::wstring outcome(Table& table, int action, int n, const std::wstring& text, Row row) {
        try {
            if (action == 0) return told(table.At(n));
            if constexpr (std::is_same_v<Table, WexRecordTable>)
                if (action == 5) return told(table.peek(n));
            if (action == 1) table.Add(row({text, L"added"}));
            if (action == 2) table.Update(n, row({text}));
            if (action == 3) table.Remove(n);
            if (action == 4) table.forgetChanges();
            return L"done";
        } catch (const WexIndexError&) {
            return L"out of range";
        }
    }

    static std::wstring told(const Record* record) {
        return record ? L"record " + std::wstring(record->field(0)) : L"no record";
    }
    static std::wstring told(const Fields* record) {
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
