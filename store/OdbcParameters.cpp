#include "store/OdbcParameters.h"

#include <algorithm>

namespace {

// Of a text that isn't long for any database.
constexpr size_t MOST_PLAIN_CHARS = 4000;

}  // namespace

bool OdbcParameters::bind(const OdbcStatement& statement, Parameters values) {
    SQLSMALLINT wanted = 0;
    if (SQL_SUCCEEDED(SQLNumParams(statement.get(), &wanted)) && static_cast<size_t>(wanted) != values.size())
        throw DatabaseError(L"the statement has " + std::to_wstring(wanted) + L" parameters, but " +
                            std::to_wstring(values.size()) + L" values came");
    // The driver keeps addresses of its elements.
    m_parameters.assign(values.size(), {});
    for (size_t i = 0; i < values.size(); ++i) {
        if (!bindOne(statement, static_cast<SQLUSMALLINT>(i + 1), values[i], m_parameters[i])) return false;
    }
    return true;
}

bool OdbcParameters::bindOne(const OdbcStatement& statement, SQLUSMALLINT number, const DataValue& value,
                             Parameter& parameter) {
    SQLSMALLINT valueType = SQL_C_WCHAR, sqlType = SQL_WVARCHAR;
    SQLULEN size = 1;
    void* data = nullptr;
    switch (value.kind) {
        case DataKind::null:
            parameter.length = SQL_NULL_DATA;
            break;
        case DataKind::integer:
            valueType = SQL_C_SBIGINT;
            sqlType = SQL_BIGINT;
            data = const_cast<int64_t*>(&value.integer);
            break;
        case DataKind::real:
            valueType = SQL_C_DOUBLE;
            sqlType = SQL_DOUBLE;
            data = const_cast<double*>(&value.real);
            break;
        case DataKind::decimal:
        case DataKind::text:
            parameter.text = view(value.text);
            parameter.length = static_cast<SQLLEN>(parameter.text.size() * sizeof(wchar_t));
            if (parameter.text.size() > MOST_PLAIN_CHARS) sqlType = SQL_WLONGVARCHAR;
            size = std::max<SQLULEN>(1, parameter.text.size());
            data = parameter.text.data();
            break;
    }
    const SQLLEN room = std::max<SQLLEN>(0, parameter.length);
    return SQL_SUCCEEDED(SQLBindParameter(statement.get(), number, SQL_PARAM_INPUT, valueType, sqlType, size,
                                          0, data, room, &parameter.length));
}
