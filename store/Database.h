// An open database of whatever product, inside the store. Portable.
#pragma once

#include <exception>
#include <span>
#include <string>
#include <string_view>

#include "store/DataAccess.h"

// What went wrong, in the database's words.
class DatabaseError : public std::exception {
  public:
    explicit DatabaseError(std::wstring words) : m_words(std::move(words)) {}

    const std::wstring& words() const { return m_words; }
    const char* what() const noexcept override { return "a database failed"; }

  private:
    std::wstring m_words;
};

using Parameters = std::span<const DataValue>;

// Each function throws DatabaseError. Closing rolls back what is open.
class Database {
  public:
    virtual ~Database() = default;

    // Runs one statement; names may stand in square brackets. Gives the number of changed rows.
    virtual int64_t execute(std::wstring_view sql, Parameters parameters) = 0;
    // The same, and hands its rows on. A statement that gives none is no error.
    virtual void query(std::wstring_view sql, Parameters parameters, DataRows& rows) = 0;

    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;
    // Also of a transaction that the program's own SQL began, where the database tells.
    virtual bool isInTransaction() const = 0;
};

inline std::wstring_view view(HostText text) { return {text.text, text.length}; }
inline HostText lent(std::wstring_view text) { return {text.data() ? text.data() : L"", text.size()}; }
