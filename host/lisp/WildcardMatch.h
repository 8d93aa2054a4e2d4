// The pattern language of wcmatch.
#pragma once

#include <string_view>

namespace lisp {

// Whether `text` as a whole matches one of the patterns, which commas separate. `#` is a digit, `@` a letter,
// `.` any other character, `?` any one, `*` any number of them, `[abc]` and `[a-z]` one of these, `[~abc]`
// none of these, `~` at the start of a pattern everything but its matches; a back-quote takes the next
// character as it is.
bool wildcardMatch(std::u16string_view text, std::u16string_view patterns);

}  // namespace lisp
