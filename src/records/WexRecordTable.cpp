#include "src/records/WexRecordTable.h"

#include <algorithm>

#include "src/records/QueryText.h"

std::unique_ptr<WexRecordTable> g_recordTable;

namespace {

HostText lent(const CString& text) { return {text.c_str(), text.size()}; }

// The values, as many as the record has that they replace; those that are missing become empty.
Record fitted(const Record& values, const Record& replaced) {
    if (values.size() == replaced.size()) return values;
    return {replaced.size(), [&](size_t at) { return values.field(at); }};
}

}  // namespace

void WexRecordTable::setUp(const CString& database, const CString& table, const CString& orderColumn) {
    if (!m_store.CanRunWithoutDatabase() && database.IsEmpty()) return;
    if (table.IsEmpty()) return;
    runQuery(L"*", database, table, bracketed(orderColumn));
}

// kept: asks the store a second time whether it needs a database, as its log may show.
void WexRecordTable::runQuery(const CString& fields, const CString& database, const CString& table,
                              const CString& order) {
    m_database = database;
    m_table = table;
    if (!m_store.CanRunWithoutDatabase() && m_database.IsEmpty()) return;
    if (m_table.IsEmpty()) return;
    Count();
    m_store.RunQuery(lent(queryText(fields, m_table, L"", order)), &m_queryRows);
}

int32_t WexRecordTable::Count() {
    if (m_count != NOT_COUNTED) return m_count;
    m_count = m_store.GetRowCount(lent(bracketed(m_table)));
    const int64_t pages = (std::max<int64_t>(m_count, 0) + PAGE_ROWS - 1) / PAGE_ROWS;
    m_pages.resize(pages);
    m_totals.resize(pages, PAGE_ROWS);
    return m_count;
}

// --- where a record is

// kept: pages of other than 100 rows count as such only until the deletions are forgotten.
WexRecordTable::Place WexRecordTable::placeOf(int32_t n) const {
    if (!m_deleted.empty()) return m_totals.find(n);
    return {n / PAGE_ROWS, n % PAGE_ROWS};
}

WexRecordTable::Place WexRecordTable::Locate(int32_t n) {
    const Place place = placeOf(n);
    if (place.page == std::ssize(m_pages)) appendPage(PAGE_EMPTY_AT_END);
    return place;
}

bool WexRecordTable::isPage(ptrdiff_t page) const { return page >= 0 && page < std::ssize(m_pages); }

const Record* WexRecordTable::rowAt(Place place) const {
    if (!isPage(place.page)) return nullptr;
    const std::vector<Record>& rows = m_pages[place.page].rows;
    return place.offset >= 0 && place.offset < std::ssize(rows) ? &rows[place.offset] : nullptr;
}

// kept: bounded by m_count, so that after a deletion a page that is loaded later is a row short.
void WexRecordTable::Load(size_t page) {
    std::vector<Record>& rows = m_pages[page].rows;
    rows.clear();
    rows.reserve(PAGE_ROWS);
    const int64_t first = static_cast<int64_t>(page) * PAGE_ROWS;
    if (first < m_count) {
        const int64_t end = std::min<int64_t>(first + PAGE_ROWS, m_count);
        const std::vector<Record>& read = m_queryRows.rows();
        int64_t at = first;
        for (; at < end && at < std::ssize(read); ++at) rows.push_back(read[at]);
        const int64_t addedAt = at - std::ssize(read);
        if (addedAt >= 0 && addedAt < static_cast<int64_t>(m_added.size()))
            for (auto added = m_added.from(addedAt); at < end && added != m_added.end(); ++at, ++added)
                rows.push_back(added->second);
        m_pagedUpTo = static_cast<int32_t>(end);
        m_pages[page].state = PAGE_LOADED;
    }
    recount(page);
}

WexRecordTable::Place WexRecordTable::recordPlace(int32_t n) {
    const int32_t count = Count();  // below 0 where the store can't count: no number is one of a record then
    if (n < 0 || n >= count) throw WexIndexError();
    const Place place = Locate(n);
    if (isPage(place.page) && m_pages[place.page].rows.empty()) Load(place.page);
    return place;
}

const Record* WexRecordTable::At(int32_t n) { return rowAt(recordPlace(n)); }

const Record* WexRecordTable::peek(int32_t n) const {
    if (n < 0 || n >= m_count) return nullptr;
    const Place place = placeOf(n);
    // At makes the page behind the last one, and then loads it.
    if (place.page < 0 || place.page > std::ssize(m_pages)) return nullptr;
    if (isPage(place.page) && !m_pages[place.page].rows.empty()) return rowAt(place);
    const int64_t at = static_cast<int64_t>(place.page) * PAGE_ROWS + place.offset;
    const std::vector<Record>& read = m_queryRows.rows();
    if (place.offset < 0 || place.offset >= PAGE_ROWS || at >= m_count) return nullptr;
    if (at < std::ssize(read)) return &read[at];
    const auto addedAt = static_cast<size_t>(at - std::ssize(read));
    return addedAt < m_added.size() ? &m_added.from(addedAt)->second : nullptr;
}

// --- changes

void WexRecordTable::Add(const Record& record) {
    if (m_pages.empty()) appendPage(PAGE_NEVER_LOADED);
    const size_t last = m_pages.size() - 1;
    if (m_pages[last].rows.size() >= PAGE_ROWS) {
        // kept: the record isn't stored here. Loading the page finds it among those that were added, unless
        // another add touches the page before.
        appendPage(PAGE_EMPTY_AT_END);
    } else {
        if (m_pages[last].state == PAGE_NEVER_LOADED) Load(last);
        m_pages[last].rows.push_back(record);
        setState(last, PAGE_TOUCHED);
    }
    ++m_count;
    m_added.append(record);
}

void WexRecordTable::Update(int32_t n, const Record& values) {
    touch(n);
    Record& changed = rowForChange(n).row;
    if (const auto added = m_added.find(changed); added != m_added.end())
        m_added.replace(added, fitted(values, changed));
    else if (const auto modified = m_modified.find(changed); modified != m_modified.end())
        m_modified.replace(modified, fitted(values, changed));
    else
        m_modified.append(values);
    changed = fitted(values, changed);
}

void WexRecordTable::Remove(int32_t n) {
    const size_t touched = touch(n);
    if (m_pages[touched].rows.empty()) setState(touched, PAGE_EMPTIED);
    const auto [page, removed] = rowForChange(n);
    if (const auto added = m_added.find(removed); added != m_added.end()) {
        m_added.erase(added);
    } else {
        if (const auto modified = m_modified.find(removed); modified != m_modified.end())
            m_modified.erase(modified);
        m_deleted.push_back(removed);
    }
    std::vector<Record>& rows = m_pages[page].rows;
    rows.erase(rows.begin() + (&removed - rows.data()));
    recount(page);
    --m_count;
}

void WexRecordTable::forgetChanges() {
    m_added.clear();
    m_modified.clear();
    m_deleted.clear();
}

size_t WexRecordTable::touch(int32_t n) {
    if (n < 0) throw WexIndexError();
    const Place place = Locate(n);
    if (!isPage(place.page)) throw WexIndexError();
    const auto page = static_cast<size_t>(place.page);
    if (m_pages[page].state == PAGE_NEVER_LOADED) Load(page);
    setState(page, PAGE_TOUCHED);
    return page;
}

WexRecordTable::FoundRow WexRecordTable::rowForChange(int32_t n) {
    const Place place = recordPlace(n);
    if (!rowAt(place)) throw WexIndexError();
    const auto page = static_cast<size_t>(place.page);
    return {page, m_pages[page].rows[place.offset]};
}

// --- pages

void WexRecordTable::appendPage(PageState state) {
    m_pages.emplace_back().state = state;
    m_totals.resize(m_pages.size(), 0);
    recount(m_pages.size() - 1);
}

void WexRecordTable::setState(size_t page, PageState state) {
    m_pages[page].state = state;
    recount(page);
}

void WexRecordTable::recount(size_t page) {
    const auto& [rows, state] = m_pages[page];
    const bool isToCome = rows.empty() && state == PAGE_NEVER_LOADED;
    m_totals.set(page, isToCome ? PAGE_ROWS : static_cast<int32_t>(rows.size()));
}
