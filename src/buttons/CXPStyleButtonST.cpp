#include "src/buttons/CXPStyleButtonST.h"

IMPLEMENT_DYNAMIC(CXPStyleButtonST, CButton)
