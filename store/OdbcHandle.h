// Handles of ODBC, and what is to be said when a call on one fails.
#pragma once

#include <windows.h>

#include <sqlext.h>

#include <string>
#include <utility>

// The driver's words for the last failure of a call on that handle, without their rank in brackets.
std::wstring odbcWords(SQLSMALLINT type, SQLHANDLE handle);
// Its five-character state; empty where there is none.
std::wstring odbcState(SQLSMALLINT type, SQLHANDLE handle);

template <SQLSMALLINT Type>
class OdbcHandle {
  public:
    OdbcHandle() = default;
    // Of the handle that owns it; null for an environment. Without one where there is no driver manager.
    explicit OdbcHandle(SQLHANDLE owner) {
        if (!SQL_SUCCEEDED(SQLAllocHandle(Type, owner, &m_handle))) m_handle = nullptr;
    }
    ~OdbcHandle() {
        if (m_handle) SQLFreeHandle(Type, m_handle);
    }
    OdbcHandle(OdbcHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    OdbcHandle& operator=(OdbcHandle&& other) noexcept {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    SQLHANDLE get() const { return m_handle; }
    explicit operator bool() const { return m_handle != nullptr; }
    std::wstring words() const { return odbcWords(Type, m_handle); }
    std::wstring state() const { return odbcState(Type, m_handle); }

  private:
    SQLHANDLE m_handle = nullptr;
};

using OdbcEnvironment = OdbcHandle<SQL_HANDLE_ENV>;
using OdbcConnection = OdbcHandle<SQL_HANDLE_DBC>;
using OdbcStatement = OdbcHandle<SQL_HANDLE_STMT>;
