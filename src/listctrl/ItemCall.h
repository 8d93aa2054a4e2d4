// What the arguments of wex_listctrl_additem and wex_listctrl_setitem ask for. Portable.
#pragma once

#include <optional>

#include "src/platform/base/CString.h"
#include "src/platform/host/HostValue.h"

struct ItemCall {
    int row = -1;
    int column = -1;
    CString text;
    bool isText = false;  // otherwise something else stood in its place
    bool isLast = true;   // otherwise more arguments stand behind it

    // One cell is set in a list of that many rows; otherwise the text is a new row.
    bool setsCell(int rowCount) const { return row != -1 && row < rowCount; }
};

// From the arguments behind the tile: [row [column]] text, where anything else in the text's place counts as
// an empty text. Nothing where the arguments end before the text.
std::optional<ItemCall> itemCallFrom(const HostValue* arguments);
