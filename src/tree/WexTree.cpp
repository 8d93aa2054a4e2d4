#include "src/tree/WexTree.h"

IMPLEMENT_DYNAMIC(WexTree, CTreeCtrl)
