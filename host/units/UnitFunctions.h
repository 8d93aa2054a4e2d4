// The Lisp functions distof, rtos, angtof and angtos. Portable.
#pragma once

#include "host/lisp/Interpreter.h"

void defineUnitFunctions(lisp::Interpreter& lisp);
