// Between wide text and the UTF-8 of a database file. An unpaired surrogate goes through both ways unharmed.
// Portable.
#pragma once

#include <string>
#include <string_view>

std::string toUtf8(std::wstring_view text);
// Wrong bytes become U+FFFD.
void appendWide(std::wstring& text, std::string_view bytes);
