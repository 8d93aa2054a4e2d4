// Turns forms into code: special forms are told from calls once, here.
#pragma once

#include <string_view>

#include "host/lisp/Node.h"

namespace lisp {

class Machine;

// Code that evaluates `form`. A malformed special form becomes code that raises the error when it runs, so
// that one bad function does not keep a file from loading.
Code* analyse(Machine& machine, Value form);

// Marks the symbols of the special forms in the machine's table.
void defineSpecialForms(Machine& machine);

// Whether `list` opens with the symbol LAMBDA.
bool isLambda(Machine& machine, Value list);

}  // namespace lisp
