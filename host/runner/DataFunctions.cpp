#include "host/runner/DataFunctions.h"

#include <cwchar>
#include <exception>
#include <vector>

#include "host/runner/HostFiles.h"
#include "host/services/DataChoice.h"
#include "host/services/DataModule.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

using lisp::Call;
using lisp::Value;

HostText lent(std::wstring_view text) { return {text.data(), text.size()}; }

std::u16string failure(DataAccess& data) {
    const HostText words = data.failure();
    return lispText({words.text, words.length});
}

// What came of a call on the store; its failure is an error of the Lisp function.
void require(bool isDone, DataAccess& data) {
    if (!isDone) throw lisp::Error(failure(data));
}

// SQL and its parameters, as Lisp gave them.
class Statement {
  public:
    explicit Statement(Call& call) : m_sql(wideText(call.text(0))) {
        for (const Value value : lisp::Elements(call.list(1))) {
            if (value.isString()) m_texts.push_back(wideText(value.asString()));
        }
        size_t texts = 0;
        for (const Value value : lisp::Elements(call.list(1))) {
            if (value.isString())
                m_parameters.push_back({.kind = DataKind::text, .text = lent(m_texts[texts++])});
            else
                m_parameters.push_back(numberOrNull(call, value));
        }
    }

    HostText sql() const { return lent(m_sql); }
    const DataValue* parameters() const { return m_parameters.data(); }
    size_t count() const { return m_parameters.size(); }

  private:
    static DataValue numberOrNull(Call& call, Value value) {
        DataValue parameter;
        if (value.isInteger()) {
            parameter.kind = DataKind::integer;
            parameter.integer = value.asInteger();
        } else if (value.isReal()) {
            parameter.kind = DataKind::real;
            parameter.real = value.asReal();
        } else if (!value.isNil()) {
            call.expected(1, "a list of integers, reals, strings and nil");
        }
        return parameter;
    }

    std::wstring m_sql;
    std::vector<std::wstring> m_texts;
    std::vector<DataValue> m_parameters;
};

// Beyond 32 bits a real, as everywhere in this Lisp.
Value integerValue(int64_t number) {
    const auto narrow = static_cast<int32_t>(number);
    return narrow == number ? Value::integer(narrow) : Value::real(static_cast<double>(number));
}

Value valueOf(lisp::Interpreter& lisp, const DataValue& field) {
    const std::wstring_view text(field.text.text, field.text.length);
    switch (field.kind) {
        case DataKind::integer:
            return integerValue(field.integer);
        case DataKind::real:
            return Value::real(field.real);
        case DataKind::decimal:
            return Value::real(std::wcstod(std::wstring(text).c_str(), nullptr));
        case DataKind::text:
            return lisp.string(lispText(text));
        case DataKind::null:
            break;
    }
    return Value::nil();
}

// A list of the rows. An error of Lisp waits until the store is out of the way.
class RowLists : public DataRows {
  public:
    explicit RowLists(lisp::Interpreter& lisp) : m_lisp(lisp), m_rows(lisp) {}

    bool add(const DataValue* fields, size_t count) override try {
        lisp::ListBuilder row(m_lisp);
        for (size_t i = 0; i < count; ++i) row.add(valueOf(m_lisp, fields[i]));
        m_rows.add(row.list());
        return true;
    } catch (...) {
        m_error = std::current_exception();
        return false;
    }

    Value list() const {
        if (m_error) std::rethrow_exception(m_error);
        return m_rows.list();
    }

  private:
    lisp::Interpreter& m_lisp;
    lisp::ListBuilder m_rows;
    std::exception_ptr m_error;
};

Value open(Call& call) { return Value::truth(openData(wideText(call.text(0)))); }

Value execute(Call& call) {
    const Statement statement(call);
    DataAccess& data = dataAccess();
    int64_t changed = 0;
    require(data.execute(statement.sql(), statement.parameters(), statement.count(), &changed), data);
    return integerValue(changed);
}

Value query(Call& call) {
    const Statement statement(call);
    DataAccess& data = dataAccess();
    RowLists rows(call.lisp);
    require(data.query(statement.sql(), statement.parameters(), statement.count(), &rows), data);
    return rows.list();
}

template <bool (DataAccess::*Step)()>
Value transaction(Call&) {
    DataAccess& data = dataAccess();
    require((data.*Step)(), data);
    return Value::truth();
}

}  // namespace

bool openData(std::wstring_view text) {
    DataChoice choice = parseDataChoice(text);
    if (choice.error.empty()) {
        DataAccess& data = dataAccess();
        if (!choice.isOdbc) choice.target = systemPath(choice.target).wstring();
        const HostText target = lent(choice.target);
        if (choice.isOdbc ? data.openOdbc(target) : data.openFile(target)) return true;
        choice.error = L"can't open " + choice.shown + L": " + wideText(failure(data));
    }
    host().console().error(choice.error);
    return false;
}

void rollBackLeftover(std::wstring_view program) {
    DataAccess* const data = loadedDataAccess();
    if (!data || !data->isInTransaction()) return;
    data->rollback();
    host().console().error(std::wstring(program) + L" left a transaction open: it is rolled back");
}

void closeData() {
    rollBackLeftover(L"the session");
    if (DataAccess* const data = loadedDataAccess()) data->close();
}

void defineDataFunctions(lisp::Interpreter& lisp) {
    lisp.defineNative(u"db_open", &open, nullptr, 1, 1);
    lisp.defineNative(u"db_exec", &execute, nullptr, 1, 2);
    lisp.defineNative(u"db_query", &query, nullptr, 1, 2);
    lisp.defineNative(u"db_begin", &transaction<&DataAccess::begin>, nullptr, 0, 0);
    lisp.defineNative(u"db_commit", &transaction<&DataAccess::commit>, nullptr, 0, 0);
    lisp.defineNative(u"db_rollback", &transaction<&DataAccess::rollback>, nullptr, 0, 0);
}
