// A table of a database as records in memory, and what was changed of it. It writes nothing back: the program
// asks for the changes and does that itself. Portable.
//
// The steps below are interface where a deletion or a full last page leaves the pages ragged: programs see
// which record has which number, so no step may be mended.
#pragma once

#include <memory>

#include "src/platform/base/CString.h"
#include "src/platform/host/HostDataStore.h"
#include "src/records/PageTotals.h"
#include "src/records/RecordRows.h"
#include "src/records/TrackedRecords.h"
#include "src/records/WexIndexError.h"

class WexRecordTable {
  public:
    static constexpr int32_t PAGE_ROWS = 100;
    static constexpr int32_t NOT_COUNTED = -1;

    enum PageState : int32_t {
        PAGE_NEVER_LOADED = 0,  // counts as 100 rows
        PAGE_LOADED = 1,        // from m_queryRows and m_added
        PAGE_EMPTY_AT_END = 2,  // made behind the last page
        PAGE_TOUCHED = 3,       // by an add, a set or a remove
        PAGE_EMPTIED = 4,       // by a remove
    };
    struct Page {
        std::vector<Record> rows;
        PageState state = PAGE_NEVER_LOADED;
    };
    // The store outlives the table.
    explicit WexRecordTable(HostDataStore& store) : m_store(store) {}
    WexRecordTable(const WexRecordTable&) = delete;
    WexRecordTable& operator=(const WexRecordTable&) = delete;

    // Reads the table in the order of that column. Nothing is read where the store needs a database and none
    // is named, and without a table's name.
    void setUp(const CString& database, const CString& table, const CString& orderColumn);

    // The number of records; asks the store at the first call. Below 0 where the store answers so.
    int32_t Count();
    // The record of that number. Throws WexIndexError for a number that isn't below Count; null where the
    // pages are so ragged that the number has no record. Valid until the next call.
    const Record* At(int32_t n);
    // The record that At would give, without loading its page; null instead of a WexIndexError.
    const Record* peek(int32_t n) const;

    void Add(const Record& record);
    // Both throw WexIndexError for a number without a record.
    void Update(int32_t n, const Record& values);
    void Remove(int32_t n);
    // Forgets what was changed; the records stay as they are.
    void forgetChanges();

    CString m_database;
    CString m_table;
    int32_t m_count = NOT_COUNTED;
    int32_t m_pagedUpTo = 0;  // the number behind the last record that was paged in
    std::vector<Page> m_pages;
    TrackedRecords m_added;
    TrackedRecords m_modified;      // with their new values
    std::vector<Record> m_deleted;  // with their last values
    RecordRows m_queryRows;         // as the store returned them
    HostDataStore& m_store;

  private:
    using Place = PageTotals::Place;

    void runQuery(const CString& fields, const CString& database, const CString& table, const CString& order);
    Place placeOf(int32_t n) const;
    // Where that number is. May be a page that isn't there.
    Place Locate(int32_t n);
    void Load(size_t page);
    bool isPage(ptrdiff_t page) const;
    const Record* rowAt(Place place) const;
    // For reading: on a page that is loaded.
    Place recordPlace(int32_t n);

    // Loads the page of a record that is about to change and gives it.
    size_t touch(int32_t n);
    struct FoundRow {
        size_t page;
        Record& row;
    };
    FoundRow rowForChange(int32_t n);

    void appendPage(PageState state);
    void setState(size_t page, PageState state);
    // After any change of a page's rows or state.
    void recount(size_t page);

    PageTotals m_totals;  // of m_pages
};

// The one table of the plug-in; null while none is set up.
extern std::unique_ptr<WexRecordTable> g_recordTable;
