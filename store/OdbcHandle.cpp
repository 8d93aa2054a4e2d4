#include "store/OdbcHandle.h"

#include <algorithm>

namespace {

struct Diagnostic {
    std::wstring state;
    std::wstring text;
};

// The record of that number, counted from 1; false behind the last one.
bool read(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT number, Diagnostic& diagnostic) {
    SQLWCHAR state[6] = {};
    SQLINTEGER code = 0;
    SQLSMALLINT length = 0;
    std::wstring text(1024, L'\0');
    const auto ask = [&] {
        return SQLGetDiagRecW(type, handle, number, state, &code, text.data(),
                              static_cast<SQLSMALLINT>(text.size()), &length);
    };
    SQLRETURN result = ask();
    if (result == SQL_SUCCESS_WITH_INFO && static_cast<size_t>(length) >= text.size()) {
        text.resize(static_cast<size_t>(length) + 1);
        result = ask();
    }
    if (!SQL_SUCCEEDED(result)) return false;
    text.resize(std::min<size_t>(static_cast<size_t>(std::max<SQLSMALLINT>(length, 0)), text.size()));
    diagnostic = {state, text};
    return true;
}

}  // namespace

std::wstring odbcWords(SQLSMALLINT type, SQLHANDLE handle) {
    std::wstring words;
    Diagnostic diagnostic;
    for (SQLSMALLINT i = 1; read(type, handle, i, diagnostic); ++i) {
        if (!words.empty()) words += L' ';
        words += diagnostic.text;
    }
    std::replace(words.begin(), words.end(), L'\r', L' ');
    std::replace(words.begin(), words.end(), L'\n', L' ');
    return words.empty() ? L"the driver failed without a word" : words;
}

std::wstring odbcState(SQLSMALLINT type, SQLHANDLE handle) {
    Diagnostic diagnostic;
    return read(type, handle, 1, diagnostic) ? diagnostic.state : L"";
}
