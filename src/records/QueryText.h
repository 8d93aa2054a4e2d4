// The text with which a store is asked for rows. Portable.
#pragma once

#include <string_view>

#include "src/platform/base/CString.h"

// "[name]"
CString bracketed(std::wstring_view name);

// "SELECT fields FROM [table]", with " WHERE …" and " ORDER BY …" where those texts hold anything but white
// space and control characters. Names are not escaped: a closing bracket goes as it stands.
CString queryText(std::wstring_view fields, std::wstring_view table, std::wstring_view where,
                  std::wstring_view order);
