#include "src/records/QueryText.h"

#include <algorithm>
#include <cwctype>

namespace {

void appendClause(CString& query, std::wstring_view word, std::wstring_view text) {
    const auto isBlank = [](wchar_t c) { return std::iswspace(c) || std::iswcntrl(c); };
    if (!std::all_of(text.begin(), text.end(), isBlank)) query.append(word).append(text);
}

}  // namespace

CString bracketed(std::wstring_view name) { return L"[" + CString(name) + L"]"; }

CString queryText(std::wstring_view fields, std::wstring_view table, std::wstring_view where,
                  std::wstring_view order) {
    CString query = L"SELECT ";
    query.append(fields).append(L" FROM ").append(bracketed(table));
    appendClause(query, L" WHERE ", where);
    appendClause(query, L" ORDER BY ", order);
    return query;
}
