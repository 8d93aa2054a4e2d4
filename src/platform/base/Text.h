// Wide text as the whole product sees it: letter case, decimal numbers, blanks. Portable.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Lower case by the platform's rule for one letter at a time.
std::wstring toLower(std::wstring_view text);

bool equalIgnoringCase(std::wstring_view a, std::wstring_view b);

// The number at the start of a text as the C run-time's _wtoi reads it: leading white space, a sign, digits.
// 0 where there is no number; a number beyond 32 bits becomes the nearest 32-bit one.
int decimalNumber(std::wstring_view text);

// `text` without blanks (the space character only) at its right end.
std::wstring trimBlanksRight(std::wstring_view text);

// The letter that works a control of that caption: the one behind a single "&", in lower case.
std::optional<wchar_t> mnemonicOf(std::wstring_view caption);

// `text` with every occurrence of `what` taken out, searched once from left to right.
std::wstring without(std::wstring_view text, std::wstring_view what);
