// The record table: set up from a store, read, changed, and beside a plain one under random calls.
#include <gtest/gtest.h>

#include <random>

#include "src/records/QueryText.h"
#include "tests/unit/records/TableTwins.h"

namespace {

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

TEST(RecordTable, LoadsThePagesThatAreReadAndNoOther) {
    Filled filled(250);
    EXPECT_EQ(filled.table.m_pages.size(), 3u);
    EXPECT_EQ(filled.name(249), L"249");
    EXPECT_EQ(filled.table.m_pages[2].rows.size(), 50u);
    EXPECT_EQ(filled.table.m_pagedUpTo, 250);
    for (const int n : {-1, -50, 250, INT32_MIN, INT32_MAX}) EXPECT_THROW(filled.table.At(n), WexIndexError);
    for (const int n : {-50, 400, INT32_MIN}) EXPECT_THROW(filled.table.Remove(n), WexIndexError);
    EXPECT_EQ(filled.table.m_pages[0].state, WexRecordTable::PAGE_NEVER_LOADED);
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

TEST(QueryText, HasTheClausesThatHoldAnything) {
    EXPECT_EQ(queryText(L"*", L"Parts", L"", L"[PN]"), L"SELECT * FROM [Parts] ORDER BY [PN]");
    EXPECT_EQ(queryText(L"*", L"Parts", L"", L"[]"), L"SELECT * FROM [Parts] ORDER BY []");
    EXPECT_EQ(queryText(L"A,B", L"Parts", L"A=1", L""), L"SELECT A,B FROM [Parts] WHERE A=1");
    EXPECT_EQ(queryText(L"*", L"a]b", L" \t\r\n\x01", L"\x7f "), L"SELECT * FROM [a]b]");
}

}  // namespace
