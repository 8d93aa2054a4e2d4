// Values on their way into a statement.
#pragma once

#include <string>
#include <vector>

#include "store/Database.h"
#include "store/OdbcHandle.h"

// Holds what the driver reads while the statement runs.
class OdbcParameters {
  public:
    // False where the driver refuses one; the statement has its words. Throws DatabaseError where the
    // statement has another number of parameters.
    bool bind(const OdbcStatement& statement, Parameters values);

  private:
    struct Parameter {
        SQLLEN length = 0;
        std::wstring text;
    };
    bool bindOne(const OdbcStatement& statement, SQLUSMALLINT number, const DataValue& value,
                 Parameter& parameter);

    std::vector<Parameter> m_parameters;
};
