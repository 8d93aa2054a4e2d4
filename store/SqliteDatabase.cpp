#include "store/SqliteDatabase.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "store/SqlText.h"
#include "store/Utf8.h"
#include "store/ValueText.h"

namespace {

// How long a call waits for another program's lock; a dialog stands still meanwhile.
constexpr int LOCK_WAIT_MS = 1000;
constexpr size_t MOST_KEPT = 8;
// In KB: the pages of a table of some 100,000 rows are read from the file once.
constexpr const char* SET_CACHE = "PRAGMA cache_size=-64000";

std::wstring wide(const char* text) {
    std::wstring result;
    appendWide(result, text ? text : "");
    return result;
}

bool holdsStatement(std::string_view sql) {
    return std::any_of(sql.begin(), sql.end(), [](char c) { return !std::strchr(" \t\r\n\f;", c); });
}

// Resets the statement when the call is over, which ends its reading lock.
class Run {
  public:
    explicit Run(sqlite3_stmt* statement) : m_statement(statement) {}
    ~Run() {
        sqlite3_reset(m_statement);
        sqlite3_clear_bindings(m_statement);
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

  private:
    sqlite3_stmt* m_statement;
};

// The row at which a statement stands, as fields that live until the next one.
class Row {
  public:
    explicit Row(sqlite3_stmt* statement)
        : m_statement(statement), m_texts(sqlite3_column_count(statement)), m_fields(m_texts.size()) {}

    const std::vector<DataValue>& read() {
        for (size_t i = 0; i < m_fields.size(); ++i) m_fields[i] = field(static_cast<int>(i), m_texts[i]);
        return m_fields;
    }

  private:
    DataValue field(int column, std::wstring& text) const {
        DataValue value;
        switch (sqlite3_column_type(m_statement, column)) {
            case SQLITE_NULL:
                return value;
            case SQLITE_INTEGER:
                value.kind = DataKind::integer;
                value.integer = sqlite3_column_int64(m_statement, column);
                return value;
            case SQLITE_FLOAT:
                value.kind = DataKind::real;
                value.real = sqlite3_column_double(m_statement, column);
                return value;
        }
        text.clear();
        const bool isBinary = sqlite3_column_type(m_statement, column) == SQLITE_BLOB;
        const void* bytes = isBinary ? sqlite3_column_blob(m_statement, column)
                                     : static_cast<const void*>(sqlite3_column_text(m_statement, column));
        const auto size = static_cast<size_t>(sqlite3_column_bytes(m_statement, column));
        if (isBinary)
            appendHex(text, {static_cast<const unsigned char*>(bytes), size});
        else
            appendWide(text, {static_cast<const char*>(bytes), size});
        value.kind = DataKind::text;
        value.text = lent(text);
        return value;
    }

    sqlite3_stmt* m_statement;
    std::vector<std::wstring> m_texts;
    std::vector<DataValue> m_fields;
};

}  // namespace

void SqliteDatabase::Closer::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

void SqliteDatabase::Closer::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteDatabase::SqliteDatabase(std::wstring_view path) {
    sqlite3* connection = nullptr;
    const int result =
        sqlite3_open_v2(toUtf8(path).c_str(), &connection,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXRESCODE, nullptr);
    m_connection.reset(connection);
    if (!connection) throw DatabaseError(wide(sqlite3_errstr(result)));
    check(result);
    configure();
}

// Reads the file for the first time, so that what is no database is told at once.
void SqliteDatabase::configure() {
    sqlite3_busy_timeout(m_connection.get(), LOCK_WAIT_MS);
    sqlite3_db_config(m_connection.get(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    // A misspelt name between double quotes is an error instead of a text.
    sqlite3_db_config(m_connection.get(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(m_connection.get(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    run("PRAGMA cell_size_check=ON");
    const int result = sqlite3_exec(m_connection.get(), SET_CACHE, nullptr, nullptr, nullptr);
    if ((result & 0xFF) != SQLITE_BUSY) check(result);
}

void SqliteDatabase::fail() const { throw DatabaseError(wide(sqlite3_errmsg(m_connection.get()))); }

void SqliteDatabase::check(int result) const {
    if (result != SQLITE_OK) fail();
}

void SqliteDatabase::run(const char* sql) const {
    check(sqlite3_exec(m_connection.get(), sql, nullptr, nullptr, nullptr));
}

SqliteDatabase::Statement SqliteDatabase::prepare(std::wstring_view sql) const {
    const std::string bytes = toUtf8(sql);
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    check(sqlite3_prepare_v2(m_connection.get(), bytes.data(), static_cast<int>(bytes.size()), &statement,
                             &rest));
    Statement owner(statement);
    if (!statement) throw DatabaseError(L"no statement");
    const std::string_view behind(rest, bytes.data() + bytes.size() - rest);
    if (!holdsStatement(behind)) return owner;
    // A comment prepares to nothing.
    sqlite3_stmt* second = nullptr;
    const int result =
        sqlite3_prepare_v2(m_connection.get(), rest, static_cast<int>(behind.size()), &second, nullptr);
    const Statement secondOwner(second);
    if (second || result != SQLITE_OK) throw DatabaseError(L"more than one statement");
    return owner;
}

void SqliteDatabase::bind(sqlite3_stmt* statement, Parameters parameters) const {
    const int wanted = sqlite3_bind_parameter_count(statement);
    if (static_cast<size_t>(wanted) != parameters.size())
        throw DatabaseError(L"the statement has " + std::to_wstring(wanted) + L" parameters, but " +
                            std::to_wstring(parameters.size()) + L" values came");
    for (int i = 0; i < wanted; ++i) {
        const DataValue& value = parameters[i];
        switch (value.kind) {
            case DataKind::null:
                check(sqlite3_bind_null(statement, i + 1));
                break;
            case DataKind::integer:
                check(sqlite3_bind_int64(statement, i + 1, value.integer));
                break;
            case DataKind::real:
                check(sqlite3_bind_double(statement, i + 1, value.real));
                break;
            case DataKind::decimal:
            case DataKind::text:
                const std::string bytes = toUtf8(view(value.text));
                check(sqlite3_bind_text64(statement, i + 1, bytes.data(), bytes.size(), SQLITE_TRANSIENT,
                                          SQLITE_UTF8));
        }
    }
}

sqlite3_stmt* SqliteDatabase::kept(std::wstring_view sql) {
    const auto found =
        std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& k) { return k.sql == sql; });
    if (found != m_kept.end()) {
        m_kept.splice(m_kept.begin(), m_kept, found);
    } else {
        m_kept.push_front({std::wstring(sql), prepare(sql)});
        if (m_kept.size() > MOST_KEPT) m_kept.pop_back();
    }
    return m_kept.front().statement.get();
}

bool SqliteDatabase::isAutomatic() const { return sqlite3_get_autocommit(m_connection.get()) != 0; }

void SqliteDatabase::refuseAfterRollback() const {
    if (hasRolledBack()) throw DatabaseError(L"the database has rolled the transaction back");
}

int64_t SqliteDatabase::execute(std::wstring_view sql, Parameters parameters) {
    refuseAfterRollback();
    sqlite3_stmt* const statement = kept(sql);
    const Run run(statement);
    bind(statement, parameters);
    // sqlite3_changes tells of the last statement that could change rows; another one leaves it as it was.
    const int64_t before = sqlite3_total_changes64(m_connection.get());
    int result;
    do result = sqlite3_step(statement);
    while (result == SQLITE_ROW);
    if (result != SQLITE_DONE) fail();
    // The statement itself may have begun or ended one.
    m_inTransaction = !isAutomatic();
    return sqlite3_total_changes64(m_connection.get()) == before ? 0 : sqlite3_changes64(m_connection.get());
}

void SqliteDatabase::query(std::wstring_view sql, Parameters parameters, DataRows& rows) {
    refuseAfterRollback();
    const Statement statement = prepare(withoutEmptyOrder(sql));
    bind(statement.get(), parameters);
    Row row(statement.get());
    int result;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
        const std::vector<DataValue>& fields = row.read();
        if (!rows.add(fields.data(), fields.size())) return;
    }
    if (result != SQLITE_DONE) fail();
    m_inTransaction = !isAutomatic();
}

void SqliteDatabase::begin() {
    refuseAfterRollback();
    run("BEGIN");
    m_inTransaction = true;
}

void SqliteDatabase::commit() {
    if (hasRolledBack()) {
        m_inTransaction = false;
        throw DatabaseError(L"the database has rolled the transaction back");
    }
    run("COMMIT");
    m_inTransaction = false;
}

// What the database rolled back by itself is so already.
void SqliteDatabase::rollback() {
    if (!hasRolledBack()) run("ROLLBACK");
    m_inTransaction = false;
}

bool SqliteDatabase::isInTransaction() const { return m_inTransaction || !isAutomatic(); }
