// Drawings in the drawing exchange format (ASCII).
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "host/database/Drawing.h"

namespace cad {

struct DxfDrawing {
    Drawing drawing;
    // How many entities of which kind were left out.
    std::map<std::string, int> skipped;
};

// Lines, polylines (also meshes), circles, arcs, texts, tables, solids and faces of model space and of all
// blocks, with layers and colours; inserted blocks as copies of their entities. Throws FileFault for a text
// that isn't such a file, or not a whole one.
DxfDrawing readDxf(std::string_view text);

}  // namespace cad
