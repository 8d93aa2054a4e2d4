#include "host/services/DataChoice.h"

#include <gtest/gtest.h>

TEST(DataChoice, AFileOrAConnectString) {
    const DataChoice file = parseDataChoice(L"C:\\parts; all=1.sqlite");
    EXPECT_FALSE(file.isOdbc);
    EXPECT_EQ(file.target, L"C:\\parts; all=1.sqlite");
    EXPECT_EQ(file.error, L"");

    const DataChoice server = parseDataChoice(L"ODBC:Driver={A;}} B} ;; Uid = x;pwd={ge;heim};Database=");
    EXPECT_TRUE(server.isOdbc);
    EXPECT_EQ(server.target, L"Driver={A;}} B} ;; Uid = x;pwd={ge;heim};Database=");
    EXPECT_EQ(server.error, L"");
    EXPECT_EQ(server.shown, L"odbc:Driver={A;}} B} ; Uid = x;pwd=***;Database=");
}

TEST(DataChoice, WhatIsWrongIsNamed) {
    const std::pair<std::wstring, const wchar_t*> cases[] = {
        {L" ", L"no database is named"},
        {std::wstring(L"a\0b", 3), L"the name of a database has a NUL in it"},
        {L"odbc:", L"odbc: needs a connect string"},
        {L"odbc:;;", L"odbc: needs a connect string"},
        {L"odbc:DSN=a;what", L"odbc: what is no NAME=VALUE"},
        {L"odbc:=a", L"odbc: a value has no name"},
        {L"odbc:Driver={a}};Uid=x", L"odbc: the brace of Driver is not closed"},
        {L"odbc:Driver={a}b", L"odbc: Driver has more behind its closing brace"},
    };
    for (const auto& [text, error] : cases) EXPECT_EQ(parseDataChoice(text).error, error);
}
