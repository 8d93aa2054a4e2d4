// Reads a text into forms, also one whose parentheses and quotation marks don't fit.
#pragma once

#include <span>
#include <vector>

#include "host/check/Form.h"

namespace check {

struct ReadText {
    std::vector<Form> forms;
    std::vector<Fault> faults;  // each where the mistake probably is, not where reading failed
};

// Reads a whole file. Where it doesn't fit, each "(" in the first column begins a form anew, so that a
// mistake reaches no further than its own form; within that the lines' indentation tells what was meant.
ReadText readFile(std::u16string_view text, Words& words);

// Reads the content of a string of a file: `offsets` tells where each of its units stands there.
ReadText readString(std::u16string_view text, std::span<const uint32_t> offsets, Words& words);

}  // namespace check
