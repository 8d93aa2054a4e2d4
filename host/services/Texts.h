// Between the texts of Lisp (UTF-16), of the system (wide) and of the outside (UTF-8). Portable.
#pragma once

#include <string>
#include <string_view>

std::wstring wideText(std::u16string_view text);
std::u16string lispText(std::wstring_view text);
// Unpaired surrogates become U+FFFD.
std::string utf8Text(std::wstring_view text);
// Wrong bytes become U+FFFD.
std::wstring wideFromUtf8(std::string_view bytes);
