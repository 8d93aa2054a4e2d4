// Records that share their texts.
#include <gtest/gtest.h>

#include <limits>
#include <new>

#include "src/records/RecordRows.h"
#include "src/records/TrackedRecords.h"
#include "tests/unit/records/MemoryStore.h"

TEST(Record, KeepsItsTextsAsTheyAre) {
    const Fields fields = {L"", L"a", std::wstring(L"b\0c", 3), std::wstring(100000, L'x'), L""};
    const Record record = recordOf(fields);
    EXPECT_EQ(fieldsOf(record), fields);
    EXPECT_EQ(record.field(5), L"");
    EXPECT_EQ(record.field(1).data()[1], L'\0');
    EXPECT_EQ(Record().size(), 0u);
    EXPECT_EQ(Record().field(0), L"");
}

TEST(Record, CopiesOutliveWhatTheyWereCopiedFrom) {
    Record kept;
    {
        Record first = recordOf({L"one"});
        kept = first;
        first = recordOf({L"two"});
        const Record moved = std::move(first);
        EXPECT_EQ(moved.field(0), L"two");
        kept = kept;
    }
    EXPECT_EQ(kept.field(0), L"one");
}

TEST(Record, IsTheSameOnlyWhereAllFieldsAre) {
    const Record record = recordOf({L"ab", L""});
    EXPECT_EQ(record, recordOf({L"ab", L""}));
    EXPECT_EQ(record.hash(), recordOf({L"ab", L""}).hash());
    for (const Fields& other :
         std::vector<Fields>{{L"ab"}, {L"", L"ab"}, {L"a", L"b"}, {L"AB", L""}, {L"ab", L"", L""}, {}})
        EXPECT_FALSE(record == recordOf(other));
    // The same characters, a NUL among them, in other fields.
    EXPECT_FALSE(recordOf({std::wstring(L"a\0b", 3), L"c"}) == recordOf({L"a", std::wstring(L"b\0c", 3)}));
}

TEST(Record, MoreThanCanBeHadIsRefused) {
    const size_t tooMany = size_t{std::numeric_limits<uint32_t>::max()} + 1;
    const HostText endless{L"", tooMany};
    RecordRows rows;
    rows.reserve(std::numeric_limits<size_t>::max());
    EXPECT_FALSE(rows.add(&endless, 1));
    EXPECT_TRUE(rows.rows().empty());
}

TEST(TrackedRecords, AreFoundByTheFirstThatIsTheSame) {
    TrackedRecords tracked;
    for (const wchar_t* name : {L"a", L"b", L"a", L"c"}) tracked.append(recordOf({name}));
    const auto names = [&] {
        std::wstring all;
        for (const auto& [number, record] : tracked) all += record.field(0);
        return all;
    };
    tracked.replace(tracked.find(recordOf({L"a"})), recordOf({L"A"}));
    EXPECT_EQ(names(), L"Abac");
    tracked.erase(tracked.find(recordOf({L"a"})));
    EXPECT_EQ(names(), L"Abc");
    tracked.replace(tracked.find(recordOf({L"c"})), recordOf({L"b"}));
    tracked.erase(tracked.find(recordOf({L"b"})));
    EXPECT_EQ(names(), L"Ab");
    EXPECT_TRUE(tracked.find(recordOf({L"a"})) == tracked.find(recordOf({L"c"})));
    EXPECT_EQ(tracked.from(1)->second, recordOf({L"b"}));
}
