// What a check finds.
#pragma once

#include <cstdint>
#include <string>

namespace check {

struct Finding {
    std::u16string file;
    // Counted from 0, in UTF-16 units; the end is behind the last one.
    uint32_t line = 0;
    uint32_t column = 0;
    uint32_t endLine = 0;
    uint32_t endColumn = 0;
    bool isNote = false;
    std::u16string text;

    // "form.lsp:12:3: warning: …", line and column counted from 1.
    std::u16string message() const;
};

}  // namespace check
