// A database that is reached through an ODBC driver.
#pragma once

#include <list>
#include <string>

#include "store/Database.h"
#include "store/OdbcHandle.h"
#include "store/SqlText.h"

// A connection that was lost is made anew at the next call, unless a transaction went with it: that is told
// once.
class OdbcDatabase : public Database {
  public:
    explicit OdbcDatabase(std::wstring_view connectString);
    ~OdbcDatabase() override;

    int64_t execute(std::wstring_view sql, Parameters parameters) override;
    void query(std::wstring_view sql, Parameters parameters, DataRows& rows) override;
    void begin() override;
    void commit() override;
    void rollback() override;
    bool isInTransaction() const override { return m_transaction != Transaction::none; }

  private:
    enum class Transaction { none, open, lost };
    struct Kept {
        std::wstring sql;
        OdbcStatement statement;
    };

    void connect();
    void disconnect();
    // What every call begins with.
    void ensureConnected();
    std::wstring information(SQLUSMALLINT what) const;
    OdbcStatement prepare(std::wstring_view sql);
    // A statement that is ready for `sql`; stays with the connection.
    OdbcStatement& kept(std::wstring_view sql);
    // Whether it has rows or a count to tell.
    void run(const OdbcStatement& statement, Parameters parameters);
    void setAutomaticCommit(bool automatic);
    void endTransaction(SQLSMALLINT how);
    [[noreturn]] void fail(const OdbcStatement& statement);
    [[noreturn]] void failConnection();
    void noticeLoss(const std::wstring& state);

    std::wstring m_connectString;
    OdbcEnvironment m_environment;
    OdbcConnection m_connection;
    bool m_isConnected = false;
    SqlDialect m_dialect;
    Transaction m_transaction = Transaction::none;
    // Statements that ran of late, the latest first.
    std::list<Kept> m_kept;
};
