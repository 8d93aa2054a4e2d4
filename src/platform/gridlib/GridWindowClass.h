// The window class of grids.
#pragma once

#include "src/platform/base/GridQuery.h"
#include "src/platform/mfc/WindowClass.h"

// Registered while it lives: by a plug-in from its attach to its detach, so that templates may name it.
class GridWindowClass : public WindowClass {
  public:
    GridWindowClass() : WindowClass(GRID_WINDOW_CLASS, nullptr) {}
};
