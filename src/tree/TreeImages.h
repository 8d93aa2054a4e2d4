// The images of a tree's items, from icons of the resource module.
#pragma once

#include "src/platform/host/HostValue.h"
#include "src/platform/mfc/CWnd.h"

// The size of an image in pixels at 96 dots per inch.
constexpr int TREE_IMAGE_SIDE = 16;

// Shows the icons named by the nodes of that chain: a short is an id, a string a name, any other node is
// passed over. An icon that isn't found takes no number.
void setTreeImages(CWnd& tree, const HostValue* icons);
