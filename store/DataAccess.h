// The data store as the host reaches it: which database is open, SQL that the host's Lisp runs, and what the
// store has to tell a person. The module that exports the plug-in's entry exports this one too. Portable.
//
// Memory and threads are as in HostDataStore.h. None of the functions throws; where one gives false,
// failure() has the database's words.
#pragma once

#include "src/platform/host/HostDataStore.h"

// The module's exported entry, a DataAccessEntry.
constexpr const char* DATA_ACCESS_ENTRY = "wexmgdDataAccess";

enum class DataKind : int32_t { null, integer, real, decimal, text };

// One field of a row, or one parameter.
struct DataValue {
    DataKind kind = DataKind::null;
    union {
        int64_t integer = 0;
        double real;
    };
    // Of a text; of a decimal, which is a number too exact for a real, its digits. Binary data come as a text
    // of hexadecimal digits.
    HostText text{L"", 0};
};

// Takes the rows of a query one by one.
class DataRows {
  public:
    // The fields live until the call returns. False: no more rows are wanted.
    virtual bool add(const DataValue* fields, size_t count) = 0;

  protected:
    ~DataRows() = default;
};

// One line for the person at the command line.
using DataReporter = void (*)(HostText line);

class DataAccess {
  public:
    // Each opens a database in the place of the one that is open, which stays where this fails. A file that
    // doesn't exist is made at the first write.
    virtual bool openFile(HostText path) = 0;
    virtual bool openOdbc(HostText connectString) = 0;
    // Rolls back what is open. Nothing where no database is open.
    virtual void close() = 0;

    // `changed`: the number of rows that were inserted, updated or deleted.
    virtual bool execute(HostText sql, const DataValue* parameters, size_t count, int64_t* changed) = 0;
    virtual bool query(HostText sql, const DataValue* parameters, size_t count, DataRows* rows) = 0;

    virtual bool begin() = 0;
    virtual bool commit() = 0;
    virtual bool rollback() = 0;
    virtual bool isInTransaction() = 0;

    // Of the last call that gave false. Valid until the next call.
    virtual HostText failure() = 0;
    // Where failures go of what the plug-in asks; standard error by default.
    virtual void setReporter(DataReporter reporter) = 0;

  protected:
    ~DataAccess() = default;
};

using DataAccessEntry = DataAccess* (*)();
