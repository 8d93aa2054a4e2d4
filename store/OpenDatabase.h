// The database at hand, as the host and the plug-in use it: failures become words. Portable.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "store/Database.h"

class OpenDatabase : public DataAccess {
  public:
    using Opener = std::unique_ptr<Database> (*)(std::wstring_view connectString);

    // `openOdbc` opens what is reached through a driver; it throws DatabaseError.
    explicit OpenDatabase(Opener openOdbc) : m_openOdbc(openOdbc) {}

    bool openFile(HostText path) override;
    bool openOdbc(HostText connectString) override;
    void close() override;
    bool execute(HostText sql, const DataValue* parameters, size_t count, int64_t* changed) override;
    bool query(HostText sql, const DataValue* parameters, size_t count, DataRows* rows) override;
    bool begin() override;
    bool commit() override;
    bool rollback() override;
    bool isInTransaction() override;
    HostText failure() override;
    void setReporter(DataReporter reporter) override;

    bool isOpen() const { return m_database != nullptr; }
    // Tells the person of the last failure, which that SQL led to.
    void report(std::wstring_view sql) const { report(m_failure, sql); }
    void report(std::wstring_view words, std::wstring_view sql) const;

  private:
    // Does the work; false where it failed, with the words kept.
    bool attempt(const std::function<void()>& work) noexcept;
    Database& database() const;
    static std::wstring_view whole(HostText sql);

    Opener m_openOdbc;
    std::unique_ptr<Database> m_database;
    std::wstring m_failure;
    DataReporter m_reporter = nullptr;
};
