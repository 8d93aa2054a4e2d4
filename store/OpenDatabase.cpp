#include "store/OpenDatabase.h"

#include <cstdio>
#include <new>

#include "store/SqliteDatabase.h"
#include "store/Utf8.h"

bool OpenDatabase::attempt(const std::function<void()>& work) noexcept {
    try {
        work();
        return true;
    } catch (const DatabaseError& error) {
        m_failure = error.words();
    } catch (const std::bad_alloc&) {
        m_failure = L"out of memory";
    } catch (const std::exception& error) {
        m_failure.clear();
        appendWide(m_failure, error.what());
    }
    return false;
}

Database& OpenDatabase::database() const {
    if (!m_database) throw DatabaseError(L"no database is open");
    return *m_database;
}

// The interfaces of databases take a NUL as the end, so what stands behind it would be lost.
std::wstring_view OpenDatabase::whole(HostText sql) {
    if (view(sql).find(L'\0') != std::wstring_view::npos)
        throw DatabaseError(L"the statement has a NUL character in it");
    return view(sql);
}

bool OpenDatabase::openFile(HostText path) {
    return attempt([&] { m_database = std::make_unique<SqliteDatabase>(view(path)); });
}

bool OpenDatabase::openOdbc(HostText connectString) {
    return attempt([&] { m_database = m_openOdbc(view(connectString)); });
}

void OpenDatabase::close() { m_database.reset(); }

bool OpenDatabase::execute(HostText sql, const DataValue* parameters, size_t count, int64_t* changed) {
    return attempt([&] { *changed = database().execute(whole(sql), {parameters, count}); });
}

bool OpenDatabase::query(HostText sql, const DataValue* parameters, size_t count, DataRows* rows) {
    return attempt([&] { database().query(whole(sql), {parameters, count}, *rows); });
}

bool OpenDatabase::begin() {
    return attempt([&] { database().begin(); });
}

bool OpenDatabase::commit() {
    return attempt([&] { database().commit(); });
}

bool OpenDatabase::rollback() {
    return attempt([&] { database().rollback(); });
}

bool OpenDatabase::isInTransaction() { return m_database && m_database->isInTransaction(); }

HostText OpenDatabase::failure() { return lent(m_failure); }

void OpenDatabase::setReporter(DataReporter reporter) { m_reporter = reporter; }

void OpenDatabase::report(std::wstring_view words, std::wstring_view sql) const {
    std::wstring line = L"data store: ";
    line.append(words).append(L": ").append(sql);
    if (m_reporter)
        m_reporter(lent(line));
    else
        std::fprintf(stderr, "%s\n", toUtf8(line).c_str());
}
