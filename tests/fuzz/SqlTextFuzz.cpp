// Square brackets made into a database's own quotes.
#include "store/SqlText.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::wstring sql = textWithTabs(data, size);
    static const SqlDialect dialects[] = {dialectOf(L"PostgreSQL", L"\""), dialectOf(L"MySQL", L"`"),
                                          dialectOf(L"", L"\"")};
    for (const SqlDialect& dialect : dialects) {
        const std::wstring quoted = withQuotedNames(sql, dialect);
        // What has been quoted is quoted for good.
        require(withQuotedNames(quoted, dialect) == quoted);
        // Nothing but brackets goes, nothing but quotes comes.
        std::wstring before = sql, after = quoted;
        for (std::wstring* text : {&before, &after})
            std::erase_if(*text, [&](wchar_t c) { return c == L'[' || c == L']' || c == dialect.quote[0]; });
        require(before == after);
        // A text goes through as it is, whatever is in it.
        std::wstring inside = sql;
        std::erase_if(inside, [](wchar_t c) { return c == L'\'' || c == L'\\'; });
        const std::wstring literal = L"SELECT '" + inside + L"', ";
        require(withQuotedNames(literal + L"[a]", dialect) == literal + dialect.quote + L"a" + dialect.quote);
    }
    require(sql.starts_with(withoutEmptyOrder(sql)));
    require(!beginsTransaction(L"SELECT " + sql));
    return 0;
}
