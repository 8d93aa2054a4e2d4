// The rows of a statement that ran, fetched in blocks.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "store/Database.h"
#include "store/OdbcHandle.h"

class OdbcRows {
  public:
    // `inBlocks`: the driver can give the rest of a long text of any row of a block.
    OdbcRows(const OdbcStatement& statement, bool inBlocks);
    // Before the statement is used for anything else.
    ~OdbcRows();
    OdbcRows(const OdbcRows&) = delete;
    OdbcRows& operator=(const OdbcRows&) = delete;

    // Hands on all rows. False where the driver failed; the statement has its words.
    bool handOn(DataRows& rows);

  private:
    // A column's cells of one block, one behind the other.
    struct Column {
        SQLSMALLINT valueType = SQL_C_WCHAR;
        DataKind kind = DataKind::text;
        bool isBound = true;
        size_t cellBytes = 0;
        std::vector<char> cells = {};
        std::vector<SQLLEN> lengths = {};
        std::wstring text = {};  // of the row at hand
    };

    bool describe();
    Column columnOf(SQLSMALLINT type, SQLULEN size) const;
    bool handOnBlock(DataRows& rows);
    bool read(SQLULEN row, size_t column, DataValue& value);
    bool readLong(SQLULEN row, size_t column, DataValue& value);
    static void setValue(const Column& column, const char* cell, DataValue& value);

    SQLHSTMT m_statement;
    bool m_inBlocks;
    std::vector<Column> m_columns;
    std::vector<DataValue> m_fields;
    SQLULEN m_fetched = 0;
    bool m_isStopped = false;
};
