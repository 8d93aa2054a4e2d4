#include "src/platform/base/Text.h"

#include <algorithm>
#include <cstdint>
#include <cwctype>
#include <limits>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

// Most letters are plain ones, and asking the platform costs many times this.
wchar_t lowerLetter(wchar_t c) {
    if (c < 0x80) return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
#ifdef _WIN32
    const auto code = static_cast<ULONG_PTR>(c);
    return static_cast<wchar_t>(reinterpret_cast<ULONG_PTR>(CharLowerW(reinterpret_cast<LPWSTR>(code))));
#else
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
#endif
}

}  // namespace

std::wstring toLower(std::wstring_view text) {
    std::wstring lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), lowerLetter);
    return lower;
}

bool equalIgnoringCase(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](wchar_t x, wchar_t y) {
               return x == y || lowerLetter(x) == lowerLetter(y);
           });
}

int decimalNumber(std::wstring_view text) {
    size_t at = 0;
    while (at < text.size() && (text[at] == L' ' || (text[at] >= L'\t' && text[at] <= L'\r'))) ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) negative = text[at++] == L'-';
    constexpr int64_t beyond = int64_t{std::numeric_limits<int32_t>::max()} + 1;
    int64_t number = 0;
    for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9'; ++at)
        number = std::min(beyond, number * 10 + (text[at] - L'0'));
    if (negative) return static_cast<int>(-number);
    return static_cast<int>(std::min(number, beyond - 1));
}

std::wstring trimBlanksRight(std::wstring_view text) {
    const size_t last = text.find_last_not_of(L' ');
    return std::wstring(last == std::wstring_view::npos ? std::wstring_view{} : text.substr(0, last + 1));
}

std::optional<wchar_t> mnemonicOf(std::wstring_view caption) {
    for (size_t at = caption.find(L'&'); at != std::wstring_view::npos && at + 1 < caption.size();
         at = caption.find(L'&', at + 2))
        if (caption[at + 1] != L'&') return lowerLetter(caption[at + 1]);
    return std::nullopt;
}

std::wstring without(std::wstring_view text, std::wstring_view what) {
    std::wstring kept;
    size_t from = 0;
    for (size_t at; (at = text.find(what, from)) != std::wstring_view::npos; from = at + what.size())
        kept += text.substr(from, at - from);
    return kept += text.substr(from);
}
