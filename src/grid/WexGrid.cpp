#include "src/grid/WexGrid.h"

IMPLEMENT_DYNAMIC(WexGrid, CWnd)
