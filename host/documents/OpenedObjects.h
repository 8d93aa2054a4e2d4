// The handles of what a plug-in has opened in a drawing. They live until they are closed, or the drawing
// goes.
#pragma once

#include <string>

#include "host/database/Drawing.h"
#include "src/platform/host/HostDatabase.h"

namespace opened {

HostBlockTable* blockTable(cad::Drawing& drawing, bool forWriting);
HostBlockRecord* block(cad::Drawing& drawing, cad::Block& block, bool forWriting);
HostViewportRecord* viewport(const cad::ViewportState& state);
// Not in a drawing yet. A record that is closed before it is added to one goes.
HostTable* newTable();
HostBlockRecord* newBlock();

// Closes all of a drawing that goes.
void closeAllOf(const cad::Drawing& drawing);

}  // namespace opened
