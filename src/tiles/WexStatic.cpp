#include "src/tiles/WexStatic.h"

IMPLEMENT_DYNAMIC(WexStatic, CStatic)
