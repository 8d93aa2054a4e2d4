// The store on a file: what the plug-in reads, what programs change, and what fails.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

#include "store/DataStore.h"
#include "tests/support/TempFolder.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using namespace std::string_view_literals;

std::vector<std::wstring> told;

class Records : public HostRecordArray {
  public:
    void reserve(size_t records) override { hint = records; }
    bool add(const HostText* fields, size_t count) override {
        if (all.size() == room) return false;
        all.emplace_back();
        for (size_t i = 0; i < count; ++i) all.back().emplace_back(view(fields[i]));
        return true;
    }
    size_t hint = 0;
    size_t room = SIZE_MAX;
    std::vector<std::vector<std::wstring>> all;
};

class Counted : public DataRows {
  public:
    bool add(const DataValue*, size_t) override { return ++count, true; }
    int count = 0;
};

class StoreTest : public testing::Test {
  protected:
    StoreTest() {
        told.clear();
        database.setReporter([](HostText line) { told.emplace_back(view(line)); });
    }

    bool open(OpenDatabase& which) { return which.openFile(lent(file)); }
    int64_t run(std::wstring_view sql, std::vector<DataValue> parameters = {}) {
        int64_t changed = -1;
        const bool isDone = database.execute(lent(sql), parameters.data(), parameters.size(), &changed);
        return isDone ? changed : -1;
    }
    std::wstring words() { return std::wstring(view(database.failure())); }
    std::vector<std::vector<std::wstring>> read(std::wstring_view sql) {
        Records records;
        store.RunQuery(lent(sql), &records);
        return records.all;
    }
    void overwrite(const std::string& bytes, std::streamoff at) {
        std::fstream stream(fs::path(file), std::ios::in | std::ios::out | std::ios::binary);
        stream.seekp(at);
        stream << bytes;
    }

    const TempFolder folder;
    const std::wstring file = folder.file("parts.sqlite");
    OpenDatabase database{nullptr};
    DataStore store{database};
};

DataValue textValue(std::wstring_view text) { return {.kind = DataKind::text, .text = lent(text)}; }

TEST_F(StoreTest, WhatIsWrittenIsRead) {
    EXPECT_FALSE(store.CanRunWithoutDatabase());
    ASSERT_TRUE(open(database));
    EXPECT_TRUE(store.CanRunWithoutDatabase());
    EXPECT_EQ(run(L"CREATE TABLE [My Parts] (n INTEGER, x, y, [z z])"), 0);
    std::vector<DataValue> row(4);
    row[0].kind = DataKind::integer;
    row[0].integer = INT64_MIN;
    const std::wstring odd = L"'\"[a]\0\r\n\U0001F600\xD800"s;
    row[1] = textValue(odd);
    row[3].kind = DataKind::real;
    row[3].real = 0.1;
    EXPECT_EQ(run(L"INSERT INTO [My Parts] VALUES (?,?,?,?)", row), 1);
    EXPECT_EQ(run(L"INSERT INTO [My Parts] VALUES (1, '', x'00FF', 2.0);  -- a comment"), 1);
    EXPECT_EQ(run(L"UPDATE [My Parts] SET y = 1"), 2);
    EXPECT_EQ(read(L"SELECT x FROM [My Parts]")[0][0], odd);

    EXPECT_EQ(store.GetRowCount(lent(L"[My Parts]")), 2);
    Records records;
    constexpr std::wstring_view ALL = L"SELECT * FROM [My Parts] ORDER BY []";
    store.RunQuery(lent(ALL), &records);
    EXPECT_EQ(records.hint, 2u);
    ASSERT_EQ(records.all.size(), 2u);
    EXPECT_EQ(records.all[0], (std::vector<std::wstring>{L"-9223372036854775808", odd, L"1", L"0.1"}));
    EXPECT_EQ(records.all[1], (std::vector<std::wstring>{L"1", L"", L"1", L"2"}));
    EXPECT_EQ(read(L"SELECT x'00FF', NULL, 1.0 / 3, -1e300")[0],
              (std::vector<std::wstring>{L"00FF", L"", L"0.3333333333333333", L"-1e+300"}));
    EXPECT_TRUE(told.empty());

    records.room = 3;
    store.RunQuery(lent(ALL), &records);
    EXPECT_EQ(records.all.size(), 3u);
    EXPECT_EQ(told, std::vector<std::wstring>{std::wstring(L"data store: out of memory: ").append(ALL)});
}

TEST_F(StoreTest, FailuresNameTheirSql) {
    EXPECT_EQ(store.GetRowCount(lent(L"[Parts]")), 0);
    ASSERT_TRUE(open(database));
    EXPECT_EQ(store.GetRowCount(lent(L"[a]b]")), 0);
    EXPECT_TRUE(read(L"SELECT * FROM [Parts] ORDER BY [PN]").empty());
    EXPECT_EQ(told, (std::vector<std::wstring>{
                        L"data store: no database is open: SELECT COUNT(*) FROM [Parts]",
                        L"data store: unrecognized token: \"]\": SELECT COUNT(*) FROM [a]b]",
                        L"data store: no such table: Parts: SELECT * FROM [Parts] ORDER BY [PN]"}));

    EXPECT_EQ(run(L"CREATE TABLE t (a UNIQUE)"), 0);
    const std::pair<std::wstring_view, const wchar_t*> failures[] = {
        {L"INSERT INTO t VALUES (?)", L"the statement has 1 parameters, but 0 values came"},
        {L"INSERT INTO t VALUES (1); DELETE FROM t", L"more than one statement"},
        {L" -- nothing", L"no statement"},
        {L"DELETE FROM t\0 WHERE 0"sv, L"the statement has a NUL"},
        {L"SELECT \"b\" FROM t", L"no such column: \"b\""},
        {L"INSERT INTO t VALUES (1), (1)", L"UNIQUE constraint failed: t.a"},
    };
    for (const auto& [sql, expected] : failures) {
        EXPECT_EQ(run(sql), -1);
        // SQLite's releases differ in how they show a name.
        EXPECT_EQ(words().substr(0, 15), std::wstring(expected).substr(0, 15))
            << "got " << testing::PrintToString(words());
    }
    EXPECT_EQ(store.GetRowCount(lent(L"t")), 0);

    // A count beyond 32 bits; its rows aren't read either.
    told.clear();
    EXPECT_EQ(store.GetRowCount(lent(L"(VALUES (1)) WHERE 0 GROUP BY column1 UNION ALL SELECT 3000000000")),
              0);
    EXPECT_TRUE(read(L"SELECT 1").empty());
    ASSERT_EQ(told.size(), 1u);
    EXPECT_TRUE(told[0].starts_with(L"data store: 3000000000 rows are more than can be read: SELECT COUNT"));
}

TEST_F(StoreTest, ACommitAgainstALockIsToldAndSucceedsLater) {
    ASSERT_TRUE(open(database));
    run(L"CREATE TABLE t (a)");
    run(L"INSERT INTO t VALUES (1)");
    OpenDatabase reader(nullptr);
    ASSERT_TRUE(open(reader));
    Counted rows;
    ASSERT_TRUE(reader.begin());
    ASSERT_TRUE(reader.query(lent(L"SELECT * FROM t"), nullptr, 0, &rows));
    EXPECT_TRUE(database.begin());
    EXPECT_EQ(run(L"INSERT INTO t VALUES (2)"), 1);
    EXPECT_FALSE(database.commit());
    EXPECT_EQ(words(), L"database is locked");
    EXPECT_TRUE(database.isInTransaction());
    ASSERT_TRUE(reader.commit());
    EXPECT_TRUE(database.commit());
    EXPECT_FALSE(database.isInTransaction());
    EXPECT_EQ(store.GetRowCount(lent(L"[t]")), 2);
}

TEST_F(StoreTest, AReadOnlyDatabaseIsReadAndNotChanged) {
    ASSERT_TRUE(open(database));
    run(L"CREATE TABLE t (a)");
    database.close();
    fs::permissions(fs::path(file), fs::perms(0444));
    fs::permissions(folder.path, fs::perms(0555));
    // Root may write everywhere: nobody may not.
    const uid_t before = geteuid();
    ASSERT_EQ(before == 0 ? seteuid(65534) : 0, 0);
    ASSERT_TRUE(open(database));
    EXPECT_EQ(store.GetRowCount(lent(L"[t]")), 0);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(run(L"INSERT INTO t VALUES (1)"), -1);
    EXPECT_EQ(words(), L"attempt to write a readonly database");
    ASSERT_EQ(seteuid(before), 0);
    fs::permissions(folder.path, fs::perms::owner_all);
}

TEST_F(StoreTest, AFullDatabaseKeepsWhatItHas) {
    ASSERT_TRUE(open(database));
    run(L"CREATE TABLE t (a)");
    run(L"PRAGMA max_page_count = 4");
    std::wstring large(20000, L'x');
    EXPECT_EQ(run(L"INSERT INTO t VALUES (?)", {textValue(large)}), -1);
    EXPECT_EQ(words(), L"database or disk is full");
    EXPECT_EQ(run(L"INSERT INTO t VALUES (1)"), 1);

    // It rolls a transaction back by itself then; nothing of it is written alone.
    EXPECT_TRUE(database.begin());
    EXPECT_EQ(run(L"INSERT INTO t VALUES (2)"), 1);
    EXPECT_EQ(run(L"INSERT INTO t VALUES (?)", {textValue(large)}), -1);
    EXPECT_EQ(run(L"INSERT INTO t VALUES (3)"), -1);
    EXPECT_EQ(words(), L"the database has rolled the transaction back");
    EXPECT_TRUE(database.rollback());
    EXPECT_EQ(store.GetRowCount(lent(L"[t]")), 1);
}

// Whatever bytes a file has lost, reading it ends with rows or with words.
TEST_F(StoreTest, ACorruptDatabaseIsToldOrRead) {
    ASSERT_TRUE(open(database));
    run(L"CREATE TABLE t (a, b)");
    run(L"CREATE INDEX i ON t (a)");
    Counted rows;
    constexpr std::wstring_view FILL =
        L"INSERT INTO t WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) SELECT i, hex(i "
        L"* i) FROM n";
    ASSERT_TRUE(database.query(lent(FILL), nullptr, 0, &rows));
    database.close();
    const std::string whole = bytesOf(file);
    std::srand(11);
    int failures = 0;
    for (int round = 0; round < 60; ++round) {
        overwrite(whole, 0);
        for (int i = 0; i < 8; ++i) {
            const auto noise = static_cast<char>(std::rand());
            overwrite(std::string(1 + std::rand() % 40, noise), 24 + std::rand() % (whole.size() - 100));
        }
        told.clear();
        if (!open(database))
            ++failures;
        else if (store.GetRowCount(lent(L"[t]")), read(L"SELECT * FROM [t] ORDER BY [a]"), !told.empty())
            ++failures;
        run(L"UPDATE t SET b = 'x' WHERE a < 100");
        database.close();
        fs::remove(fs::path(file + L"-journal"));
    }
    EXPECT_GT(failures, 10);
    fs::resize_file(fs::path(file), whole.size() / 2);
    EXPECT_TRUE(!open(database) || read(L"SELECT * FROM [t] ORDER BY [b]").size() < 2000 || told.empty());
}

}  // namespace
