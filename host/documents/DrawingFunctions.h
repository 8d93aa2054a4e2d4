// The Lisp functions that make and ask drawings; docs/drawings.md tells them.
#pragma once

#include "host/lisp/Interpreter.h"

void defineDrawingFunctions(lisp::Interpreter& lisp);
