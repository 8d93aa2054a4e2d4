#include "store/OdbcRows.h"

#include <algorithm>
#include <cstring>
#include <functional>

#include "store/ValueText.h"

namespace {

constexpr SQLULEN BLOCK_ROWS = 256;
// Longer texts are fetched one by one.
constexpr SQLULEN MOST_CELL_CHARS = 256;
constexpr size_t PIECE_BYTES = 16384;

bool isBinary(SQLSMALLINT type) {
    return type == SQL_BINARY || type == SQL_VARBINARY || type == SQL_LONGVARBINARY;
}

}  // namespace

OdbcRows::OdbcRows(const OdbcStatement& statement, bool inBlocks)
    : m_statement(statement.get()), m_inBlocks(inBlocks) {}

OdbcRows::~OdbcRows() {
    SQLFreeStmt(m_statement, SQL_CLOSE);
    SQLFreeStmt(m_statement, SQL_UNBIND);
}

OdbcRows::Column OdbcRows::columnOf(SQLSMALLINT type, SQLULEN size) const {
    switch (type) {
        case SQL_BIT:
        case SQL_TINYINT:
        case SQL_SMALLINT:
        case SQL_INTEGER:
        case SQL_BIGINT:
            return {.valueType = SQL_C_SBIGINT, .kind = DataKind::integer, .cellBytes = sizeof(int64_t)};
        case SQL_FLOAT:
        case SQL_DOUBLE:
            return {.valueType = SQL_C_DOUBLE, .kind = DataKind::real, .cellBytes = sizeof(double)};
        case SQL_REAL:
            return {.valueType = SQL_C_FLOAT, .kind = DataKind::real, .cellBytes = sizeof(float)};
    }
    Column column;
    if (type == SQL_NUMERIC || type == SQL_DECIMAL) column.kind = DataKind::decimal;
    if (isBinary(type)) column.valueType = SQL_C_BINARY;
    const bool isLong = size == 0 || size > MOST_CELL_CHARS;
    column.isBound = m_inBlocks || !isLong;
    // A NUL stands behind a text; a character may take two units.
    column.cellBytes = (2 * (isLong ? MOST_CELL_CHARS : size) + 1) * sizeof(wchar_t);
    return column;
}

bool OdbcRows::describe() {
    SQLSMALLINT count = 0;
    if (!SQL_SUCCEEDED(SQLNumResultCols(m_statement, &count))) return false;
    for (SQLUSMALLINT i = 1; i <= count; ++i) {
        SQLSMALLINT nameLength = 0, type = 0, digits = 0, nullable = 0;
        SQLULEN size = 0;
        if (!SQL_SUCCEEDED(
                SQLDescribeColW(m_statement, i, nullptr, 0, &nameLength, &type, &size, &digits, &nullable)))
            return false;
        m_columns.push_back(columnOf(type, size));
    }
    // Behind one that isn't bound, a driver may refuse those that are.
    const auto firstLong =
        std::find_if_not(m_columns.begin(), m_columns.end(), std::mem_fn(&Column::isBound));
    const bool allBound = firstLong == m_columns.end();
    for (auto column = firstLong; column != m_columns.end(); ++column) column->isBound = false;

    const SQLULEN rows = allBound ? BLOCK_ROWS : 1;
    SQLSetStmtAttr(m_statement, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(rows), 0);
    SQLSetStmtAttr(m_statement, SQL_ATTR_ROWS_FETCHED_PTR, &m_fetched, 0);
    for (size_t i = 0; i < m_columns.size(); ++i) {
        Column& column = m_columns[i];
        if (!column.isBound) continue;
        column.cells.resize(column.cellBytes * rows);
        column.lengths.resize(rows);
        if (!SQL_SUCCEEDED(SQLBindCol(m_statement, static_cast<SQLUSMALLINT>(i + 1), column.valueType,
                                      column.cells.data(), static_cast<SQLLEN>(column.cellBytes),
                                      column.lengths.data())))
            return false;
    }
    m_fields.resize(m_columns.size());
    return true;
}

bool OdbcRows::handOn(DataRows& rows) {
    if (!describe()) return false;
    if (m_columns.empty()) return true;
    while (!m_isStopped) {
        m_fetched = 0;
        const SQLRETURN result = SQLFetch(m_statement);
        if (result == SQL_NO_DATA) return true;
        if (!SQL_SUCCEEDED(result)) return false;
        if (!handOnBlock(rows)) return false;
    }
    return true;
}

bool OdbcRows::handOnBlock(DataRows& rows) {
    for (SQLULEN row = 0; row < m_fetched; ++row) {
        for (size_t i = 0; i < m_columns.size(); ++i) {
            if (!read(row, i, m_fields[i])) return false;
        }
        if (rows.add(m_fields.data(), m_fields.size())) continue;
        m_isStopped = true;
        break;
    }
    return true;
}

void OdbcRows::setValue(const Column& column, const char* cell, DataValue& value) {
    value.kind = column.kind;
    if (column.valueType == SQL_C_SBIGINT) {
        std::memcpy(&value.integer, cell, sizeof value.integer);
    } else if (column.valueType == SQL_C_DOUBLE) {
        std::memcpy(&value.real, cell, sizeof value.real);
    } else {
        float single;
        std::memcpy(&single, cell, sizeof single);
        value.real = realOfSingle(single);
    }
}

bool OdbcRows::read(SQLULEN row, size_t index, DataValue& value) {
    Column& column = m_columns[index];
    if (!column.isBound) return readLong(row, index, value);
    const SQLLEN length = column.lengths[row];
    const char* const cell = column.cells.data() + row * column.cellBytes;
    value = {};
    if (length == SQL_NULL_DATA) return true;
    if (column.valueType != SQL_C_WCHAR && column.valueType != SQL_C_BINARY) {
        setValue(column, cell, value);
        return true;
    }
    const size_t end = column.valueType == SQL_C_WCHAR ? sizeof(wchar_t) : 0;
    if (length == SQL_NO_TOTAL || static_cast<size_t>(length) > column.cellBytes - end)
        return readLong(row, index, value);
    value.kind = column.kind;
    if (column.valueType == SQL_C_BINARY) {
        column.text.clear();
        appendHex(column.text, {reinterpret_cast<const unsigned char*>(cell), static_cast<size_t>(length)});
        value.text = lent(column.text);
    } else {
        // The cells of a column begin at even addresses.
        value.text = {reinterpret_cast<const wchar_t*>(cell), static_cast<size_t>(length) / sizeof(wchar_t)};
    }
    return true;
}

// In pieces, of which each text has a NUL behind it.
bool OdbcRows::readLong(SQLULEN row, size_t index, DataValue& value) {
    Column& column = m_columns[index];
    if (m_fetched > 1 && !SQL_SUCCEEDED(SQLSetPos(m_statement, static_cast<SQLSETPOSIROW>(row + 1),
                                                  SQL_POSITION, SQL_LOCK_NO_CHANGE)))
        return false;
    value = {};
    column.text.clear();
    char piece[PIECE_BYTES];
    const size_t room = sizeof piece - (column.valueType == SQL_C_WCHAR ? sizeof(wchar_t) : 0);
    for (;;) {
        SQLLEN left = 0;
        const SQLRETURN result = SQLGetData(m_statement, static_cast<SQLUSMALLINT>(index + 1),
                                            column.valueType, piece, sizeof piece, &left);
        if (result == SQL_NO_DATA) break;
        if (!SQL_SUCCEEDED(result)) return false;
        if (left == SQL_NULL_DATA) return true;
        const size_t came = left == SQL_NO_TOTAL ? room : std::min(static_cast<size_t>(left), room);
        if (column.valueType == SQL_C_WCHAR)
            column.text.append(reinterpret_cast<const wchar_t*>(piece), came / sizeof(wchar_t));
        else if (column.valueType == SQL_C_BINARY)
            appendHex(column.text, {reinterpret_cast<const unsigned char*>(piece), came});
        else
            return setValue(column, piece, value), true;
        if (result == SQL_SUCCESS) break;
    }
    value.kind = column.kind;
    value.text = lent(column.text);
    return true;
}
