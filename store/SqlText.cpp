#include "store/SqlText.h"

#include <algorithm>
#include <cwctype>
#include <iterator>

#include "src/platform/base/Text.h"

namespace {

constexpr std::wstring_view EMPTY_ORDER = L" ORDER BY []";

bool isNameChar(wchar_t c) { return c == L'_' || c == L'$' || c >= 0x80 || std::iswalnum(c); }

class NameQuoter {
  public:
    NameQuoter(std::wstring_view sql, const SqlDialect& dialect) : m_sql(sql), m_dialect(dialect) {}

    std::wstring quoted() {
        while (m_at < m_sql.size()) takeToken();
        return std::move(m_result);
    }

  private:
    bool startsWith(std::wstring_view text) const { return m_sql.substr(m_at).starts_with(text); }

    void takeToken() {
        const wchar_t c = m_sql[m_at];
        if (c == L'\'') return copyTo(literalEnd(m_dialect.mysql || isEscapeString()));
        // A literal too, unless names are quoted so.
        if (c == L'"') return copyTo(literalEnd(m_dialect.mysql && m_dialect.quote != L"\""));
        if (c == L'`') return copyTo(literalEnd(false));
        if (opensLineComment()) return copyTo(behind(L"\n", m_at));
        if (startsWith(L"/*")) return copyTo(commentEnd());
        if (c == L'$' && m_dialect.postgres) return copyTo(dollarEnd());
        if (c == L'[') return takeBracket();
        copyTo(isNameChar(c) ? wordEnd() : m_at + 1);
    }

    void copyTo(size_t end) {
        m_result += m_sql.substr(m_at, end - m_at);
        m_at = end;
    }

    // Behind the next `mark` from `from` on, or at the end.
    size_t behind(std::wstring_view mark, size_t from) const {
        const size_t found = m_sql.find(mark, from);
        return found == m_sql.npos ? m_sql.size() : found + mark.size();
    }

    size_t wordEnd() const {
        size_t end = m_at + 1;
        while (end < m_sql.size() && isNameChar(m_sql[end])) ++end;
        return end;
    }

    // A doubled quote ends one literal and begins the next, which comes to the same.
    size_t literalEnd(bool hasEscapes) const {
        const wchar_t quote = m_sql[m_at];
        for (size_t at = m_at + 1; at < m_sql.size(); ++at) {
            if (hasEscapes && m_sql[at] == L'\\')
                ++at;
            else if (m_sql[at] == quote)
                return at + 1;
        }
        return m_sql.size();
    }

    bool opensLineComment() const {
        if (!m_dialect.mysql) return startsWith(L"--");
        return m_sql[m_at] == L'#' ||
               (startsWith(L"--") && (m_at + 2 == m_sql.size() || std::iswspace(m_sql[m_at + 2])));
    }

    // E'…': the word in front of the literal is an E.
    bool isEscapeString() const {
        if (!m_dialect.postgres || m_at == 0 || (m_sql[m_at - 1] | 0x20) != L'e') return false;
        return m_at == 1 || !isNameChar(m_sql[m_at - 2]);
    }

    // PostgreSQL nests comments.
    size_t commentEnd() const {
        int depth = 0;
        for (size_t at = m_at; at + 1 < m_sql.size(); ++at) {
            const std::wstring_view pair = m_sql.substr(at, 2);
            if (pair == L"*/") {
                if (--depth == 0 || !m_dialect.postgres) return at + 2;
                ++at;
            } else if (pair == L"/*") {
                ++depth;
                ++at;
            }
        }
        return m_sql.size();
    }

    // Behind a whole $tag$…$tag$; behind the dollar where it opens none.
    size_t dollarEnd() const {
        size_t tagEnd = m_at + 1;
        while (tagEnd < m_sql.size() && m_sql[tagEnd] != L'$' && isNameChar(m_sql[tagEnd])) ++tagEnd;
        const bool isParameter = tagEnd > m_at + 1 && std::iswdigit(m_sql[m_at + 1]);
        if (tagEnd >= m_sql.size() || m_sql[tagEnd] != L'$' || isParameter) return m_at + 1;
        return behind(m_sql.substr(m_at, tagEnd + 1 - m_at), tagEnd + 1);
    }

    // a[1], (…)[i], text[], array[1, 2]: close behind what they belong to, and no name that one would give a
    // column.
    bool isSubscript(std::wstring_view name) const {
        if (!m_dialect.postgres || m_result.empty()) return false;
        const wchar_t before = m_result.back();
        if (!isNameChar(before) && before != L')' && before != L']' && before != L'"') return false;
        const bool ofArray =
            m_result.size() >= 5 && equalIgnoringCase(m_result.substr(m_result.size() - 5), L"array");
        return ofArray || name.empty() || std::iswdigit(name[0]) || name[0] == L'-' || name[0] == L':';
    }

    void takeBracket() {
        const size_t end = m_sql.find(L']', m_at);
        if (end == m_sql.npos) return copyTo(m_sql.size());
        const std::wstring_view name = m_sql.substr(m_at + 1, end - m_at - 1);
        if (isSubscript(name)) return copyTo(end + 1);
        m_result += m_dialect.quote;
        for (const wchar_t c : name) {
            if (m_dialect.quote[0] == c) m_result += c;
            m_result += c;
        }
        m_result += m_dialect.quote;
        m_at = end + 1;
    }

    const std::wstring_view m_sql;
    const SqlDialect& m_dialect;
    size_t m_at = 0;
    std::wstring m_result;
};

}  // namespace

SqlDialect dialectOf(std::wstring_view product, std::wstring_view quote) {
    SqlDialect dialect;
    // A blank means that the database has no quotes.
    if (quote != L" " && quote != L"[") dialect.quote = quote;
    dialect.postgres = equalIgnoringCase(product, L"PostgreSQL");
    dialect.mysql = equalIgnoringCase(product, L"MySQL") || equalIgnoringCase(product, L"MariaDB");
    return dialect;
}

std::wstring_view withoutEmptyOrder(std::wstring_view sql) {
    return sql.ends_with(EMPTY_ORDER) ? sql.substr(0, sql.size() - EMPTY_ORDER.size()) : sql;
}

bool beginsTransaction(std::wstring_view sql) {
    constexpr std::wstring_view BETWEEN = L" \t\r\n;";
    const auto takeWord = [&] {
        sql.remove_prefix(std::min(sql.find_first_not_of(BETWEEN), sql.size()));
        const std::wstring_view word = sql.substr(0, sql.find_first_of(BETWEEN));
        sql.remove_prefix(word.size());
        return word;
    };
    const std::wstring_view first = takeWord(), second = takeWord();
    const auto isSecond = [&](std::wstring_view word) { return equalIgnoringCase(second, word); };
    if (equalIgnoringCase(first, L"START")) return isSecond(L"TRANSACTION");
    constexpr std::wstring_view BEHIND_BEGIN[] = {L"",     L"TRANSACTION", L"TRAN",
                                                  L"WORK", L"ISOLATION",   L"READ"};
    return equalIgnoringCase(first, L"BEGIN") &&
           std::any_of(std::begin(BEHIND_BEGIN), std::end(BEHIND_BEGIN), isSecond);
}

std::wstring withQuotedNames(std::wstring_view sql, const SqlDialect& dialect) {
    return dialect.quote.empty() ? std::wstring(sql) : NameQuoter(sql, dialect).quoted();
}
