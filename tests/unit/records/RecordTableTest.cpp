// The record table: set up from a store, read, changed, and beside a plain one under random calls.
#include <gtest/gtest.h>

#include <random>

#include "tests/unit/records/TableTwins.h"

namespace {

using Log = std::vector<std::wstring>;

std::vector<std::wstring> names(const auto& records) {
    std::vector<std::wstring> names;
    for (const auto& record : records) {
        if constexpr (requires { record.second; })
            names.emplace_back(record.second.field(0));
        else
            names.emplace_back(record.field(0));
    }
    return names;
}
using Names = std::vector<std::wstring>;

// A table of rows "0", "1" and so on.
struct Filled {
    explicit Filled(int rows) : store(rows), table(store) { table.setUp(L"", L"Parts", L"PN"); }
    std::wstring name(int n) {
        const Record* record = table.At(n);
        return record ? std::wstring(record->field(0)) : L"none";
    }

    MemoryStore store;
    WexRecordTable table;
};

TEST(RecordTable, AsksTheStoreForTheCountAndThenForTheRows) {
    Filled filled(3);
    const Log asked = {L"needs database?", L"needs database?", L"count [Parts]",
                       L"SELECT * FROM [Parts] ORDER BY [PN]"};
    EXPECT_EQ(filled.store.log, asked);
    EXPECT_EQ(filled.table.Count(), 3);
    EXPECT_EQ(filled.name(2), L"2");
    EXPECT_EQ(filled.store.log, asked) << "asked once";
}

TEST(RecordTable, StaysEmptyWhereTheStoreNeedsADatabaseOrNoTableIsNamed) {
    for (const bool noTable : {false, true}) {
        MemoryStore store(3);
        store.runsWithoutDatabase = noTable;
        WexRecordTable table(store);
        table.setUp(L"", noTable ? L"" : L"Parts", L"PN");
        EXPECT_EQ(store.log, Log{L"needs database?"});
        EXPECT_EQ(table.m_count, WexRecordTable::NOT_COUNTED);
        EXPECT_EQ(table.Count(), 3);
        EXPECT_EQ(store.log.back(), L"count []");
        EXPECT_EQ(table.At(0), nullptr);
    }
    MemoryStore store(3);
    store.runsWithoutDatabase = false;
    WexRecordTable named(store);
    named.setUp(L"project", L"Parts", L"");
    EXPECT_EQ(store.log.back(), L"SELECT * FROM [Parts] ORDER BY []");
    EXPECT_EQ(named.At(2)->field(0), L"2");
}

TEST(RecordTable, LoadsThePagesThatAreReadAndNoOther) {
    Filled filled(250);
    EXPECT_EQ(filled.table.m_pages.size(), 3u);
    EXPECT_EQ(filled.name(249), L"249");
    EXPECT_EQ(filled.table.m_pages[2].rows.size(), 50u);
    EXPECT_EQ(filled.table.m_pagedUpTo, 250);
    EXPECT_EQ(filled.table.m_pages[0].state, WexRecordTable::PAGE_NEVER_LOADED);
    for (const int n : {-1, 250, INT32_MIN, INT32_MAX}) EXPECT_THROW(filled.table.At(n), WexIndexError);
}

TEST(RecordTable, TracksWhatChanged) {
    Filled filled(250);
    WexRecordTable& table = filled.table;
    table.Remove(0);
    EXPECT_EQ(filled.name(0), L"1");
    EXPECT_EQ(names(table.m_deleted), Names{L"0"});
    table.Update(0, recordOf({L"one"}));
    table.Update(0, recordOf({L"ONE"}));
    EXPECT_EQ(names(table.m_modified), Names{L"ONE"});
    table.Remove(0);
    EXPECT_TRUE(table.m_modified.empty());
    EXPECT_EQ(names(table.m_deleted), (Names{L"0", L"ONE"}));

    table.Add(recordOf({L"new", L"", L"", L"", L""}));
    const int last = table.Count() - 1;
    EXPECT_EQ(last, 248);
    table.Update(5, recordOf({L"6"}));
    EXPECT_EQ(names(table.m_modified), Names{L"6"}) << "an update with no change";
    table.forgetChanges();
    EXPECT_TRUE(table.m_added.empty() && table.m_modified.empty() && table.m_deleted.empty());
    EXPECT_EQ(table.Count(), 249);
}

TEST(RecordTable, WhatIsAddedAndGoesAgainWasNeverThere) {
    Filled filled(0);
    filled.table.Add(recordOf({L"a"}));
    filled.table.Update(0, recordOf({L"b"}));
    EXPECT_EQ(names(filled.table.m_added), Names{L"b"});
    filled.table.Remove(0);
    EXPECT_TRUE(filled.table.m_added.empty() && filled.table.m_modified.empty() &&
                filled.table.m_deleted.empty());
    EXPECT_EQ(filled.table.Count(), 0);
}

TEST(RecordTable, ARecordBehindAFullPageIsFoundUntilTheNextComes) {
    Filled filled(100);
    EXPECT_EQ(filled.name(99), L"99");
    filled.table.Add(recordOf({L"a"}));
    EXPECT_EQ(filled.name(100), L"a");
    filled.table.Add(recordOf({L"b"}));
    EXPECT_EQ(filled.name(101), L"b");

    Filled unread(100);
    EXPECT_EQ(unread.name(99), L"99");
    unread.table.Add(recordOf({L"a"}));
    unread.table.Add(recordOf({L"b"}));
    EXPECT_EQ(unread.name(100), L"b");
    EXPECT_EQ(unread.name(101), L"none");
    EXPECT_THROW(unread.table.Update(101, recordOf({L"c"})), WexIndexError);
    EXPECT_THROW(unread.table.Remove(101), WexIndexError);
    EXPECT_EQ(unread.table.Count(), 102);
}

TEST(RecordTable, ANumberFarOutsideChangesNothing) {
    Filled filled(100);
    for (const int n : {-100, 200, INT32_MIN, INT32_MAX}) {
        EXPECT_THROW(filled.table.Remove(n), WexIndexError);
        EXPECT_THROW(filled.table.Update(n, recordOf({L"x"})), WexIndexError);
    }
    EXPECT_EQ(filled.table.m_pages.size(), 1u);
    EXPECT_EQ(filled.table.m_pages[0].state, WexRecordTable::PAGE_NEVER_LOADED);
    // The next one behind the last page makes one, which stays.
    EXPECT_THROW(filled.table.Remove(100), WexIndexError);
    EXPECT_EQ(filled.table.m_pages.size(), 2u);
}

TEST(RecordTable, AStoreThatCantCountHasNoRecords) {
    MemoryStore store(3);
    store.count = -1;
    WexRecordTable table(store);
    table.setUp(L"", L"Parts", L"");
    EXPECT_EQ(table.Count(), -1);
    for (const int n : {-1, 0, 2}) EXPECT_THROW(table.At(n), WexIndexError);
    EXPECT_THROW(table.Remove(0), WexIndexError);
}

// Few rows and many changes, so that pages become ragged and records equal.
TEST(RecordTable, IsThePlainOneUnderRandomCalls) {
    for (unsigned seed = 0; seed < 25; ++seed) {
        std::mt19937 random(seed);
        const auto chance = [&](int n) { return static_cast<int>(random() % n); };
        const int rows = chance(450);
        TableTwins twins(rows, chance(4) ? rows : chance(450));
        const bool grows = chance(2);
        for (int step = 0; step < 300; ++step) {
            const int kinds[] = {0, 1, 2, 3, 5, grows ? 1 : 3};
            const int action = chance(150) ? kinds[chance(6)] : 4;
            const int n = chance(20) ? chance(twins.count() + 2) : chance(4000) - 2000;
            const std::wstring wrong = twins.call(action, n, std::to_wstring(chance(60)));
            ASSERT_EQ(wrong, L"") << "seed " << seed << ", step " << step << ", action " << action
                                  << ", record " << n;
        }
    }
}

}  // namespace
