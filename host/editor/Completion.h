// What an editor may offer where a person types.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/check/CheckProgram.h"

namespace editor {

// By the numbers that the protocol has for them.
enum class CompletionKind { function = 3, dialog = 7, tile = 20, keyword = 14 };

struct CompletionItem {
    std::u16string text;
    std::u16string detail;
    CompletionKind kind;
};

struct Completion {
    // What an item takes the place of.
    uint32_t begin = 0;
    uint32_t end = 0;
    std::vector<CompletionItem> items;
};

// Within a string the names that its argument may be: dialogs, or the tiles of the dialog that is current
// there, and where that isn't sure of all that the program opens. Elsewhere functions.
Completion completionAt(const check::CheckedProgram& program, const check::Knowledge& knowledge,
                        std::u16string_view text, uint32_t offset);

}  // namespace editor
