#include "store/SqlText.h"

#include <gtest/gtest.h>

#include "store/Utf8.h"
#include "store/ValueText.h"

namespace {

const SqlDialect POSTGRES = dialectOf(L"PostgreSQL", L"\"");
const SqlDialect MYSQL = dialectOf(L"MySQL", L"`");

TEST(SqlText, NamesInBracketsAreQuoted) {
    EXPECT_EQ(withQuotedNames(L"SELECT * FROM [Parts] ORDER BY [PN]", POSTGRES),
              L"SELECT * FROM \"Parts\" ORDER BY \"PN\"");
    EXPECT_EQ(withQuotedNames(L"SELECT [a`b\"],[Größe mm]FROM[s].[t]", MYSQL),
              L"SELECT `a``b\"`,`Größe mm`FROM`s`.`t`");
    // A closing bracket ends a name wherever it stands.
    EXPECT_EQ(withQuotedNames(L"SELECT * FROM [a]b]", POSTGRES), L"SELECT * FROM \"a\"b]");
    EXPECT_EQ(withQuotedNames(L"[] [open", POSTGRES), L"\"\" [open");
    // The database itself takes brackets, or nothing of the kind.
    EXPECT_EQ(withQuotedNames(L"[x]", dialectOf(L"Any", L" ")), L"[x]");
}

TEST(SqlText, WhatIsNoNameStays) {
    for (const wchar_t* sql : {
             L"SELECT '[a]', 'it''s [b]', \"[c]\", \"d\"\"[d]\" -- [e]\n",
             L"SELECT /* [a] /* [b] */ [c] */ 1",
             L"SELECT E'\\'[a]', $$[b]$$, $tag$[c]$$[d]$tag$, $1",
             L"SELECT a[1], b[1:2][3], (c)[1], ARRAY[x, 1], '{}'::text[]",
             L"SELECT 'open [a]",
         })
        EXPECT_EQ(withQuotedNames(sql, POSTGRES), sql);
    EXPECT_EQ(withQuotedNames(L"SELECT '\\'[a]', [b]", MYSQL), L"SELECT '\\'[a]', `b`");
    EXPECT_EQ(withQuotedNames(L"SELECT \"\\\"[a]\", [b] # [c]\n-- [d]\n, 5--[e]", MYSQL),
              L"SELECT \"\\\"[a]\", `b` # [c]\n-- [d]\n, 5--`e`");
    // Elsewhere a backslash is a character like others, and so is an e in front of a text.
    EXPECT_EQ(withQuotedNames(L"SELECT '\\' || [a], name'\\'[b]", POSTGRES),
              L"SELECT '\\' || \"a\", name'\\'\"b\"");
    EXPECT_EQ(withQuotedNames(L"SELECT $1, [a], $2, [b]", POSTGRES), L"SELECT $1, \"a\", $2, \"b\"");
}

TEST(SqlText, ABlockOfStatementsBeginsNoTransaction) {
    for (const wchar_t* sql :
         {L"BEGIN", L" begin ;", L"Begin\nWork", L"BEGIN TRAN x", L"start transaction read only"})
        EXPECT_TRUE(beginsTransaction(sql)) << testing::PrintToString(sql);
    for (const wchar_t* sql :
         {L"", L"BEGIN UPDATE t SET a = 1; END", L"START SLAVE", L"SELECT 'BEGIN'", L"BEGINNING"})
        EXPECT_FALSE(beginsTransaction(sql)) << testing::PrintToString(sql);
}

TEST(ValueText, ASingleIsItsShortestReal) { EXPECT_EQ(realOfSingle(0.1f), 0.1); }

TEST(Utf8, EveryCharacterComesBack) {
    std::wstring all;
    for (uint32_t c = 0; c <= 0x10FFFF; ++c) all += static_cast<wchar_t>(c);
    std::wstring back;
    appendWide(back, toUtf8(all));
    // Two halves that stand together become one character, here where a unit holds all of it.
    std::wstring wanted = all;
    wanted.replace(0xDBFF, 2, 1, static_cast<wchar_t>(0x10FC00));
    EXPECT_EQ(back, wanted);

    std::wstring wrong;
    appendWide(wrong, "a\xFF\xC3(\xE2\x82");
    EXPECT_EQ(wrong, L"a\xFFFD\xFFFD(\xFFFD");
}

}  // namespace
