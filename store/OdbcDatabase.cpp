#include "store/OdbcDatabase.h"

#include <algorithm>

#include "store/OdbcParameters.h"
#include "store/OdbcRows.h"

namespace {

constexpr size_t MOST_KEPT = 8;
constexpr SQLUINTEGER LOGIN_SECONDS = 15;
// What a driver must be able to do for a long text in the middle of a block.
constexpr SQLUINTEGER BLOCK_ABILITIES = SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER | SQL_GD_BLOCK | SQL_GD_BOUND;
// Instead of waiting as long as another program holds its lock, and the dialog with it.
constexpr wchar_t LIMIT_LOCK_WAIT[] = L"SET lock_timeout = '5s'";
constexpr const wchar_t* TRANSACTION_LOST = L"the connection was lost, and the transaction with it";

SQLPOINTER number(SQLULEN value) { return reinterpret_cast<SQLPOINTER>(value); }

SQLWCHAR* text(const std::wstring& text) { return const_cast<SQLWCHAR*>(text.c_str()); }

}  // namespace

OdbcDatabase::OdbcDatabase(std::wstring_view connectString)
    : m_connectString(connectString), m_environment(nullptr) {
    if (!m_environment) throw DatabaseError(L"this system has no driver manager for ODBC");
    SQLSetEnvAttr(m_environment.get(), SQL_ATTR_ODBC_VERSION, number(SQL_OV_ODBC3), 0);
    connect();
}

OdbcDatabase::~OdbcDatabase() { disconnect(); }

void OdbcDatabase::connect() {
    OdbcConnection connection(m_environment.get());
    if (!connection) throw DatabaseError(m_environment.words());
    SQLSetConnectAttrW(connection.get(), SQL_ATTR_LOGIN_TIMEOUT, number(LOGIN_SECONDS), SQL_IS_UINTEGER);
    const SQLRETURN result = SQLDriverConnectW(connection.get(), nullptr, text(m_connectString), SQL_NTS,
                                               nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(result)) throw DatabaseError(connection.words());
    m_connection = std::move(connection);
    m_isConnected = true;
    m_dialect = dialectOf(information(SQL_DBMS_NAME), information(SQL_IDENTIFIER_QUOTE_CHAR));
    if (!m_dialect.postgres) return;
    const OdbcStatement statement(m_connection.get());
    SQLExecDirectW(statement.get(), const_cast<SQLWCHAR*>(LIMIT_LOCK_WAIT), SQL_NTS);
}

// Statements go before the connection that they belong to. Many a driver doesn't disconnect in a transaction.
void OdbcDatabase::disconnect() {
    m_kept.clear();
    if (!m_connection) return;
    if (isInTransaction()) SQLEndTran(SQL_HANDLE_DBC, m_connection.get(), SQL_ROLLBACK);
    SQLDisconnect(m_connection.get());
    m_connection = {};
    m_isConnected = false;
}

void OdbcDatabase::ensureConnected() {
    if (m_transaction == Transaction::lost) throw DatabaseError(TRANSACTION_LOST);
    if (m_isConnected) return;
    disconnect();
    connect();
}

std::wstring OdbcDatabase::information(SQLUSMALLINT what) const {
    std::wstring words(256, L'\0');
    SQLSMALLINT bytes = 0;
    const auto room = static_cast<SQLSMALLINT>(words.size() * sizeof(wchar_t));
    if (!SQL_SUCCEEDED(SQLGetInfoW(m_connection.get(), what, words.data(), room, &bytes))) return L"";
    words.resize(std::min<size_t>(static_cast<size_t>(std::max<SQLSMALLINT>(bytes, 0)) / sizeof(wchar_t),
                                  words.size()));
    return words;
}

// 08: the connection. 57P01 to 57P03: PostgreSQL's server is stopping or not yet there.
void OdbcDatabase::noticeLoss(const std::wstring& state) {
    SQLUINTEGER isDead = SQL_CD_FALSE;
    const bool tells = SQL_SUCCEEDED(
        SQLGetConnectAttrW(m_connection.get(), SQL_ATTR_CONNECTION_DEAD, &isDead, SQL_IS_UINTEGER, nullptr));
    const bool isLost =
        state.starts_with(L"08") || state.starts_with(L"57P0") || (tells && isDead == SQL_CD_TRUE);
    if (!isLost) return;
    m_isConnected = false;
    if (m_transaction == Transaction::open) m_transaction = Transaction::lost;
}

void OdbcDatabase::fail(const OdbcStatement& statement) {
    const DatabaseError error(statement.words());
    noticeLoss(statement.state());
    throw error;
}

void OdbcDatabase::failConnection() {
    const DatabaseError error(m_connection.words());
    noticeLoss(m_connection.state());
    throw error;
}

// A driver doesn't tell of a transaction that it wasn't asked for, and so nobody would end one that a program
// has left open.
OdbcStatement OdbcDatabase::prepare(std::wstring_view sql) {
    if (beginsTransaction(sql)) throw DatabaseError(L"a transaction is begun by db_begin, not by SQL");
    OdbcStatement statement(m_connection.get());
    if (!statement) failConnection();
    const std::wstring quoted = withQuotedNames(sql, m_dialect);
    if (!SQL_SUCCEEDED(SQLPrepareW(statement.get(), text(quoted), static_cast<SQLINTEGER>(quoted.size()))))
        fail(statement);
    return statement;
}

OdbcStatement& OdbcDatabase::kept(std::wstring_view sql) {
    const auto found =
        std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& k) { return k.sql == sql; });
    if (found != m_kept.end()) {
        m_kept.splice(m_kept.begin(), m_kept, found);
    } else {
        m_kept.push_front({std::wstring(sql), prepare(sql)});
        if (m_kept.size() > MOST_KEPT) m_kept.pop_back();
    }
    return m_kept.front().statement;
}

// SQL_NO_DATA: an update that found no row.
void OdbcDatabase::run(const OdbcStatement& statement, Parameters parameters) {
    OdbcParameters bound;
    if (!bound.bind(statement, parameters)) fail(statement);
    const SQLRETURN result = SQLExecute(statement.get());
    if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) fail(statement);
}

int64_t OdbcDatabase::execute(std::wstring_view sql, Parameters parameters) {
    ensureConnected();
    try {
        const OdbcStatement& statement = kept(sql);
        run(statement, parameters);
        SQLSMALLINT columns = 0;
        SQLLEN changed = 0;
        SQLNumResultCols(statement.get(), &columns);
        if (columns == 0) SQLRowCount(statement.get(), &changed);
        SQLFreeStmt(statement.get(), SQL_CLOSE);
        SQLFreeStmt(statement.get(), SQL_RESET_PARAMS);
        return std::max<int64_t>(changed, 0);
    } catch (...) {
        // It may hold on to what has changed since it was prepared.
        m_kept.remove_if([&](const Kept& k) { return k.sql == sql; });
        throw;
    }
}

void OdbcDatabase::query(std::wstring_view sql, Parameters parameters, DataRows& rows) {
    ensureConnected();
    const OdbcStatement statement = prepare(withoutEmptyOrder(sql));
    run(statement, parameters);
    SQLUINTEGER abilities = 0;
    SQLGetInfoW(m_connection.get(), SQL_GETDATA_EXTENSIONS, &abilities, sizeof abilities, nullptr);
    if (!OdbcRows(statement, (abilities & BLOCK_ABILITIES) == BLOCK_ABILITIES).handOn(rows)) fail(statement);
}

void OdbcDatabase::setAutomaticCommit(bool automatic) {
    const SQLULEN mode = automatic ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF;
    if (!SQL_SUCCEEDED(
            SQLSetConnectAttrW(m_connection.get(), SQL_ATTR_AUTOCOMMIT, number(mode), SQL_IS_UINTEGER)))
        failConnection();
}

void OdbcDatabase::begin() {
    if (m_transaction == Transaction::open) throw DatabaseError(L"a transaction is open already");
    ensureConnected();
    setAutomaticCommit(false);
    m_transaction = Transaction::open;
}

void OdbcDatabase::endTransaction(SQLSMALLINT how) {
    if (m_transaction == Transaction::none) throw DatabaseError(L"no transaction is open");
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, m_connection.get(), how))) failConnection();
    m_transaction = Transaction::none;
    // It is done; a connection that can't go on is made anew by the next call.
    try {
        setAutomaticCommit(true);
    } catch (const DatabaseError&) {
        m_isConnected = false;
    }
}

void OdbcDatabase::commit() {
    if (m_transaction == Transaction::lost) {
        m_transaction = Transaction::none;
        throw DatabaseError(TRANSACTION_LOST);
    }
    endTransaction(SQL_COMMIT);
}

// What was lost with its connection is rolled back, also where the loss shows only now.
void OdbcDatabase::rollback() {
    try {
        if (m_transaction != Transaction::lost) endTransaction(SQL_ROLLBACK);
    } catch (const DatabaseError&) {
        if (m_transaction != Transaction::lost) throw;
    }
    m_transaction = Transaction::none;
}
