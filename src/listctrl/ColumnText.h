// The columns of a list control as one text: fields separated by tabs, of which the first makes no column.
// Portable.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "src/platform/base/CString.h"

struct ListColumn {
    CString title;
    int width;  // device pixels
};

// The columns from left to right. Tabs at the end of the text make none, but for a text that is one tab.
// `widthOf` tells how many pixels a title takes; each blank at a title's end is cut and widens its column.
std::vector<ListColumn> columnsFromText(std::wstring_view text,
                                        const std::function<int(const CString&)>& widthOf);
