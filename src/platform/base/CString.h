// Wide text with value semantics, under the class library's names. A field type; work on text with Text.h.
#pragma once

#include <string>
#include <vector>

#include "src/platform/base/Text.h"

class CString : public std::wstring {
  public:
    using std::wstring::wstring;
    CString(std::wstring text) : std::wstring(std::move(text)) {}
    CString(std::wstring_view text) : std::wstring(text) {}

    bool IsEmpty() const { return empty(); }
};

using CStringArray = std::vector<CString>;
