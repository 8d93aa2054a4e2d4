// Lines of a list that go on with the line above. Portable.
#pragma once

#include <string_view>

#include "src/platform/base/CString.h"

// No field tells which lines go on.
constexpr int NO_KEY_COLUMN = -1;

// The field of the line that is empty where it goes on with the line above: the whole line without a key
// column, and where there is no such field.
// kept: the count is one short. A field of one character counts as empty, and from the second field on the
// tab in front is taken for a character of it.
std::wstring_view keyField(std::wstring_view line, int keyColumn);

// A line with those that are folded into it, field below field.
// kept: where the next line's field is empty, that of the line is lost and those behind it move left, the key
// field always; and a field of one character becomes a blank.
class FoldedLine {
  public:
    explicit FoldedLine(std::wstring_view line);
    // Costs as much as the next line is long, however long this one has become.
    void fold(std::wstring_view next);
    CString text() const;

  private:
    CStringArray m_fields;
    bool m_endsWithTab;
};

// Whether lines may be folded into that one, and whether that one is folded into the line above.
bool takesContinuations(std::wstring_view line, int keyColumn);
bool isContinuation(std::wstring_view line, int keyColumn);
