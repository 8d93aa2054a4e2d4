// The Lisp functions that work a dialog as a person does, and look at it.
#pragma once

#include <string>

#include "host/lisp/Interpreter.h"

// Defines the ui_ functions. Pictures go to `shotsFolder`, where their names aren't whole paths; an empty one
// is the working folder.
void defineUiFunctions(lisp::Interpreter& lisp, const std::wstring& shotsFolder);
