// A database in a file of its own. Portable.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "store/Database.h"

struct sqlite3;
struct sqlite3_stmt;

class SqliteDatabase : public Database {
  public:
    // The file is made at the first write, where it doesn't exist. One that somebody else has locked opens
    // too.
    explicit SqliteDatabase(std::wstring_view path);

    int64_t execute(std::wstring_view sql, Parameters parameters) override;
    void query(std::wstring_view sql, Parameters parameters, DataRows& rows) override;
    void begin() override;
    void commit() override;
    void rollback() override;
    bool isInTransaction() const override;

  private:
    struct Closer {
        void operator()(sqlite3* database) const;
        void operator()(sqlite3_stmt* statement) const;
    };
    using Connection = std::unique_ptr<sqlite3, Closer>;
    using Statement = std::unique_ptr<sqlite3_stmt, Closer>;
    struct Kept {
        std::wstring sql;
        Statement statement;
    };

    [[noreturn]] void fail() const;
    void check(int result) const;
    void configure();
    Statement prepare(std::wstring_view sql) const;
    void bind(sqlite3_stmt* statement, Parameters parameters) const;
    sqlite3_stmt* kept(std::wstring_view sql);
    void run(const char* sql) const;
    bool isAutomatic() const;
    // After some failures, as of a full disk, the database rolls back by itself: what follows would be
    // written alone.
    bool hasRolledBack() const { return m_inTransaction && isAutomatic(); }
    void refuseAfterRollback() const;

    Connection m_connection;
    // A transaction was begun and not ended by the program.
    bool m_inTransaction = false;
    // Statements that ran of late, the latest first: a program that writes back runs a few over and over.
    std::list<Kept> m_kept;
};
