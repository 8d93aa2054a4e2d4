// The data store as the plug-in reaches it: a module that the host loads, and in it the objects that read the
// database. Portable.
//
// Memory: neither side frees what the other made. Text is lent for the length of a call and copied by whoever
// keeps it; rows are handed one by one to an array that the caller brings. Objects live as long as their
// module. All calls come from the host's main thread, and none of them throws.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr const wchar_t* DATA_STORE_MODULE = L"WEXDATASTOREMGDREV.dll";
// The module's exported entry, a HostDataStoreEntry.
constexpr const char* DATA_STORE_ENTRY = "wexmgdDataStoreServices";

// `length` code units, without a NUL at the end and never with a null pointer, also where it is empty.
struct HostText {
    const wchar_t* text;
    size_t length;
};

// An array of records that a store fills.
class HostRecordArray {
  public:
    // So many records are about to come; a hint, which may be wrong.
    virtual void reserve(size_t records) = 0;
    // Copies one record to the end. False where there is no memory for it: the store then stops.
    virtual bool add(const HostText* fields, size_t count) = 0;

  protected:
    ~HostRecordArray() = default;
};

// The order of the functions is the order of their slots.
class HostDataStore {
  public:
    virtual void notCalled() = 0;
    // Whether tables can be read without naming a database.
    virtual bool CanRunWithoutDatabase() = 0;
    // The number of rows of a table; its name comes in square brackets. 0 where it can't be read, which the
    // store reports by itself.
    virtual int32_t GetRowCount(HostText bracketedTable) = 0;
    // Adds one record for each row of the result, one text for each column: NULL is empty, a number its
    // shortest decimal notation, binary data its hexadecimal digits. Where the query fails,
    // which the store reports by itself, the rows that came before stay.
    virtual void RunQuery(HostText sql, HostRecordArray* records) = 0;

  protected:
    ~HostDataStore() = default;
};

class HostDataStoreServices {
  public:
    virtual void notCalled() = 0;
    // The store, for one record table; it remains the module's.
    virtual HostDataStore* GetStore() = 0;

  protected:
    ~HostDataStoreServices() = default;
};

using HostDataStoreEntry = HostDataStoreServices* (*)();
