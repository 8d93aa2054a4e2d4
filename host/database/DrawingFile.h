// The host's own drawing file: UTF-8 text that a person can read and mend, one thing a line, numbers and
// quoted texts between blanks. docs/drawings.md tells the lines.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "host/database/Drawing.h"

namespace cad {

// "line 12: WHY".
class FileFault : public std::runtime_error {
  public:
    FileFault(size_t line, const std::string& why)
        : std::runtime_error("line " + std::to_string(line) + ": " + why) {}
};

std::string drawingText(const Drawing& drawing);

// Throws FileFault for a text that isn't a whole drawing.
Drawing drawingOf(std::string_view text);

}  // namespace cad
