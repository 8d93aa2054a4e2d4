// The 94 Lisp functions of the product.
#pragma once

#include "src/shell/LispTable.h"

// In the order of their function codes.
LispTable lispFunctions();
