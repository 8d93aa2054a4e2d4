// The items of a tree view.
#pragma once

#include <memory>

#include "host/drive/Items.h"

// From top to bottom, those in closed branches too.
std::unique_ptr<Items> treeItemsOf(HWND treeView);
