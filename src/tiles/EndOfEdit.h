// What becomes of the text of an edit box for distances or angles when the person leaves it. Portable.
#pragma once

#include <functional>
#include <optional>

#include "src/platform/base/CString.h"

// The host's converters of one notation.
struct UnitConverters {
    std::function<std::optional<double>(const CString& text)> parse;
    std::function<std::optional<CString>(double value)> format;
};

struct EditedText {
    CString shown;
    CString lastGood;
};

// A text that can't be parsed gives way to the last good one; one that can is shown in the host's form, or as
// it was typed where the value can't be formatted. An empty text stands for "0.0".
EditedText endOfEdit(const CString& typed, const CString& lastGood, const UnitConverters& converters);
