#include <gtest/gtest.h>

#include "src/records/QueryText.h"

TEST(QueryText, HasTheClausesThatHoldAnything) {
    EXPECT_EQ(queryText(L"*", L"Parts", L"", L"[PN]"), L"SELECT * FROM [Parts] ORDER BY [PN]");
    EXPECT_EQ(queryText(L"*", L"Parts", L"", L"[]"), L"SELECT * FROM [Parts] ORDER BY []");
    EXPECT_EQ(queryText(L"A,B", L"Parts", L"A=1", L""), L"SELECT A,B FROM [Parts] WHERE A=1");
    EXPECT_EQ(queryText(L"*", L"a]b", L" \t\r\n\x01", L"\x7f "), L"SELECT * FROM [a]b]");
}
