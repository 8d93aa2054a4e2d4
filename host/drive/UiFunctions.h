// The Lisp functions that work a dialog as a person does, and look at it.
#pragma once

#include "host/lisp/Interpreter.h"

// Defines the ui_ functions.
void defineUiFunctions(lisp::Interpreter& lisp);
