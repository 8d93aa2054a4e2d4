// The selected cells of a grid as assistive programs enumerate them.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <vector>

#include "src/platform/base/GridQuery.h"

// An enumeration of the children of all cells in those areas, each once; the caller owns it. Cells are made
// up as they are asked for: there may be millions.
IEnumVARIANT* selectedChildren(std::vector<GridArea> areas, uint32_t columns);
