#include "host/services/DataChoice.h"

#include "host/lisp/Text.h"
#include "src/platform/base/Text.h"

namespace {

constexpr std::wstring_view ODBC_PREFIX = L"odbc:";
constexpr std::wstring_view BLANKS = L" \t\r\n";

bool isSecret(std::wstring_view name) {
    return equalIgnoringCase(name, L"PWD") || equalIgnoringCase(name, L"Password");
}

// Attributes NAME=VALUE, parted by semicolons. A value that begins with a brace goes on to its closing one; a
// doubled closing brace in it is one of its characters.
class ConnectString {
  public:
    explicit ConnectString(std::wstring_view text) : m_rest(text) {}

    // Fills in `shown` or `error`.
    void check(DataChoice& choice) {
        while (choice.error.empty() && !m_rest.empty()) takeAttribute(choice);
        if (choice.error.empty() && !m_hasAttributes) choice.error = L"odbc: needs a connect string";
    }

  private:
    std::wstring_view take(size_t length) {
        const std::wstring_view taken = m_rest.substr(0, length);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    void takeAttribute(DataChoice& choice) {
        const std::wstring_view head = take(m_rest.find_first_of(L"=;"));
        const std::wstring name(lisp::trimmed(head));
        if (m_rest.empty() || m_rest[0] == L';') {
            take(1);
            if (!name.empty()) choice.error = L"odbc: " + name + L" is no NAME=VALUE";
            return;
        }
        if (name.empty()) {
            choice.error = L"odbc: a value has no name";
            return;
        }
        m_hasAttributes = true;
        const std::wstring_view sign = take(1);
        const std::wstring_view value = takeValue(name, choice);
        choice.shown.append(head).append(sign).append(isSecret(name) ? L"***" : value).append(take(1));
    }

    std::wstring_view takeValue(const std::wstring& name, DataChoice& choice) {
        const size_t first = m_rest.find_first_not_of(BLANKS);
        if (first == m_rest.npos || m_rest[first] != L'{') return take(m_rest.find(L';'));
        size_t end = first;
        do {
            end = m_rest.find(L'}', end + 1);
            if (end == m_rest.npos) {
                choice.error = L"odbc: the brace of " + name + L" is not closed";
                return {};
            }
        } while (end + 1 < m_rest.size() && m_rest[end + 1] == L'}' && ++end);
        const size_t close = std::min(m_rest.find(L';', end), m_rest.size());
        if (!lisp::trimmed(m_rest.substr(end + 1, close - end - 1)).empty())
            choice.error = L"odbc: " + name + L" has more behind its closing brace";
        return take(close);
    }

    std::wstring_view m_rest;
    bool m_hasAttributes = false;
};

}  // namespace

DataChoice parseDataChoice(std::wstring_view text) {
    DataChoice choice;
    if (lisp::trimmed(text).empty()) {
        choice.error = L"no database is named";
    } else if (text.find(L'\0') != text.npos) {
        choice.error = L"the name of a database has a NUL in it";
    } else if (equalIgnoringCase(text.substr(0, ODBC_PREFIX.size()), ODBC_PREFIX)) {
        choice.isOdbc = true;
        choice.target = text.substr(ODBC_PREFIX.size());
        choice.shown = ODBC_PREFIX;
        ConnectString(choice.target).check(choice);
    } else {
        choice.target = text;
        choice.shown = text;
    }
    return choice;
}
